! The Fortran module on the library: published IF97 values through the
! exports, a pair and a fourteen-output call, a failure with its code and
! text, a gas mixture against its components, a text result, and kvtEval
! and kvtEvalGas over arrays bit for bit against the exports.
program test_fortran
  use, intrinsic :: iso_c_binding
  use, intrinsic :: ieee_arithmetic, only: ieee_is_nan
  use kvtcore
  implicit none
  integer :: failed = 0, i
  ! IF97 check values (tables 5 and 15): p [Pa], T [K], h [J/kg]
  real(c_double), parameter :: table(3, 5) = reshape([ &
      3d6, 300d0, 0.115331273d6,   80d6, 300d0, 0.184142828d6,   3d6, 500d0, 0.975542239d6, &
      3500d0, 300d0, 0.254991145d7,   30d6, 700d0, 0.263149474d7], [3, 5])
  real(c_double) :: p, T, h, s, out14(14), cp, w(2), mm(2)
  real(c_double), target :: pa(4), Ta(1), hs(4), cps(3), Tg(3)
  integer(c_int32_t), target :: codes(4)
  integer(c_size_t), target :: strides(2)
  type(c_ptr) :: e, args(2)
  integer(c_int64_t) :: nfailed
  character(len=:), allocatable :: text

  do i = 1, size(table, 2)
    call check(abs(kvtHPT(table(1, i), table(2, i)) / table(3, i) - 1) < 1d-8, "kvtHPT against IF97")
  end do

  ! h and s of a state, and back to p and T by the pair output.
  h = kvtHPT(3d6, 500d0)
  s = kvtSPT(3d6, 500d0)
  call check(kvtPTHS(h, s, p, T) == 1d0, "kvtPTHS succeeds")
  call check(abs(p / 3d6 - 1) < 1d-8 .and. abs(T / 500d0 - 1) < 1d-8, "kvtPTHS inverts h and s")
  call check(kvtVUSHCVWDERPT1PT(3d6, 300d0, out14(1), out14(2), out14(3), out14(4), out14(5), out14(6), &
      out14(7), out14(8), out14(9), out14(10), out14(11), out14(12), out14(13), out14(14)) == 1d0, "14 outputs")
  call check(abs(out14(4) / kvtH1PT(3d6, 300d0) - 1) < 1d-12, "the fourth of 14 outputs is h")
  call check(abs(out14(14) / kvtCP1PT(3d6, 300d0) - 1) < 1d-12, "the last of 14 outputs is cp")

  ! A failure: -1, the code, its text.
  h = kvtHPT(1d12, 300d0)
  call check(h == -1d0, "out of range gives -1")
  call check(kvtGETLASTERROR() == 2, "out of range gives code 2")
  text = kvt_f(kvtGETLASTERRORDESCRIPTION())
  call check(text(1:2) == "2.", "the text of code 2")

  ! Air by volume parts against its components mixed by mass.
  mm = [kvtgMMID(0), kvtgMMID(1)]
  w = [0.79d0, 0.21d0] * mm / sum([0.79d0, 0.21d0] * mm)
  cp = kvtgCPGST(kvt_c("N2:0.79;O2:0.21"), 500d0)
  call check(abs(cp / (w(1) * kvtgCPIDT(0, 500d0) + w(2) * kvtgCPIDT(1, 500d0)) - 1) < 1d-9, "mixture cp")
  call check(kvt_f(kvtgGSID(0)) == "N2", "kvtgGSID(0) is N2")

  ! Arrays: p varies, T is one value for all points (stride 0).
  e = kvtEngineNew()
  pa = [1d5, 3d6, 1d12, 20d6]
  Ta = [450d0]
  args = [c_loc(pa), c_loc(Ta)]
  strides = [1_c_size_t, 0_c_size_t]
  nfailed = kvtEval(e, kvt_c("HPT"), 4_c_size_t, args, c_loc(strides), hs, c_loc(codes), 1)
  call check(nfailed == 1 .and. all(codes == [0, 0, 2, 0]), "kvtEval: one failed point, code 2")
  call check(ieee_is_nan(hs(3)), "kvtEval: NaN at the failed point")
  do i = 1, 4
    if (i /= 3) call check(hs(i) == kvtHPT(pa(i), 450d0), "kvtEval equals kvtHPT bit for bit")
  end do
  Tg = [300d0, 500d0, 1500d0]
  args(1) = c_loc(Tg)
  nfailed = kvtEvalGas(e, kvt_c("gCPGST"), kvt_c("N2:0.79;O2:0.21"), 3_c_size_t, args, c_null_ptr, cps, &
      c_null_ptr, 0)
  call check(nfailed == 0, "kvtEvalGas succeeds")
  do i = 1, 3
    call check(cps(i) == kvtgCPGST(kvt_c("N2:0.79;O2:0.21"), Tg(i)), "kvtEvalGas equals kvtgCPGST")
  end do
  call check(kvtEngineSet(e, kvt_c("toleranceMode"), 0d0) == 0, "engine setting")
  call check(kvtEngineGet(e, kvt_c("toleranceMode")) == 0d0, "engine setting read back")
  call check(kvt_f(kvtErrorMessage(2)) /= "unknown error", "kvtErrorMessage(2)")
  call kvtEngineFree(e)

  print '(i0, a)', failed, " failed"
  if (failed /= 0) stop 1

contains

  subroutine check(ok, what)
    logical, intent(in) :: ok
    character(len=*), intent(in) :: what
    if (.not. ok) then
      failed = failed + 1
      print '(2a)', "failed: ", what
    end if
  end subroutine check

end program test_fortran
