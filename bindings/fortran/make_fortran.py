"""Writes kvtcore.f90, the Fortran module of the library, from the catalogue.

    python3 bindings/fortran/make_fortran.py OUTPUT.f90 [--stdcall]

The module kvtcore has a bind(C) interface for every export of kvtcore.h
under its own name, the engines and evaluation over arrays of
kvtcore_batch.h, and two helpers for texts: kvt_c(text) makes the
null-terminated text a C function takes, kvt_f(pointer) the Fortran string of
a text the library returns. --stdcall (for 32-bit Windows, where the exports
are __stdcall) gives every export gfortran's STDCALL attribute.
"""
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools"))
import catalogue  # noqa: E402

# C type of an argument -> its Fortran declaration (the exports take numbers
# by value, outputs by reference, texts as null-terminated character arrays).
ARG = {"double": "real(c_double), value", "double*": "real(c_double), intent(out)",
       "int32_t": "integer(c_int32_t), value", "const char*": "character(kind=c_char), intent(in)"}
RESULT = {"double": "real(c_double)", "int32_t": "integer(c_int32_t)",
          "const char*": "type(c_ptr)", "const char16_t*": "type(c_ptr)"}


def wrap(line, indent):
    """Free-form lines stay under 132 characters: break after commas."""
    out = []
    while len(line) > 100:
        cut = line.rindex(", ", 0, 100) + 1
        out.append(line[:cut] + " &")
        line = " " * (indent + 4) + line[cut:].lstrip()
    return out + [line]


def interface(row, stdcall):
    names = [a.name for a in row.args]
    lines = wrap(f"    function {row.name}({', '.join(names)}) bind(C, name=\"{row.name}\")", 4)
    lines.append("      import :: c_double, c_int32_t, c_char, c_ptr")
    if stdcall:
        lines.append(f"!GCC$ ATTRIBUTES STDCALL :: {row.name}")
    for a in row.args:
        dims = "(*)" if a.ctype == "const char*" else ""
        unit = f"  ! {a.unit}" if a.unit else ""
        lines.append(f"      {ARG[a.ctype]} :: {a.name}{dims}{unit}")
    lines.append(f"      {RESULT[row.ctype]} :: {row.name}  ! {row.result}")
    lines.append(f"    end function {row.name}")
    return lines


HEAD = """! kvtcore: water, steam and gas properties for Fortran.
! Written from the catalogue of kvtcore.h by bindings/fortran/make_fortran.py;
! do not edit, generate it again.
!
!   use kvtcore
!   h = kvtHPT(3d6, 300d0)                    ! J/kg; -1 on failure:
!   if (kvtGETLASTERROR() /= 0) print *, kvt_f(kvtGETLASTERRORDESCRIPTION())
!   cp = kvtgCPGST(kvt_c("N2:0.79;O2:0.21"), 500d0)
!
! Every export takes numbers in SI units by value and returns one number;
! a pair or fourteen-output function writes its outputs into the variables
! given. The engines and kvtEval (kvtcore_batch.h) evaluate over arrays.
module kvtcore
  use, intrinsic :: iso_c_binding
  implicit none

  ! The catalogue as data: one row of kvtFunctionAt or kvtFunctionFind.
  type, bind(C) :: kvtFunctionInfo
    integer(c_int32_t) :: ordinal
    type(c_ptr) :: name, shape, rule, result
    integer(c_int32_t) :: gas, evaluable, inputs, outputs
    type(c_ptr) :: inputNames, inputUnits, outputNames, outputUnits
  end type kvtFunctionInfo

  interface"""

BATCH = """
    ! ---- Engines and evaluation over arrays (kvtcore_batch.h) ----
    function kvtEngineNew() bind(C, name="kvtEngineNew")
      import :: c_ptr
      type(c_ptr) :: kvtEngineNew
    end function kvtEngineNew
    function kvtEngineClone(e) bind(C, name="kvtEngineClone")
      import :: c_ptr
      type(c_ptr), value :: e
      type(c_ptr) :: kvtEngineClone
    end function kvtEngineClone
    subroutine kvtEngineFree(e) bind(C, name="kvtEngineFree")
      import :: c_ptr
      type(c_ptr), value :: e
    end subroutine kvtEngineFree
    function kvtEngineSet(e, setting, value) bind(C, name="kvtEngineSet")
      import :: c_ptr, c_char, c_double, c_int32_t
      type(c_ptr), value :: e
      character(kind=c_char), intent(in) :: setting(*)
      real(c_double), value :: value
      integer(c_int32_t) :: kvtEngineSet
    end function kvtEngineSet
    function kvtEngineGet(e, setting) bind(C, name="kvtEngineGet")
      import :: c_ptr, c_char, c_double
      type(c_ptr), value :: e
      character(kind=c_char), intent(in) :: setting(*)
      real(c_double) :: kvtEngineGet
    end function kvtEngineGet
    function kvtEngineLastError(e) bind(C, name="kvtEngineLastError")
      import :: c_ptr, c_int32_t
      type(c_ptr), value :: e
      integer(c_int32_t) :: kvtEngineLastError
    end function kvtEngineLastError
    function kvtEngineNewGas(e, gasSpec) bind(C, name="kvtEngineNewGas")
      import :: c_ptr, c_char, c_int32_t
      type(c_ptr), value :: e
      character(kind=c_char), intent(in) :: gasSpec(*)
      integer(c_int32_t) :: kvtEngineNewGas
    end function kvtEngineNewGas
    function kvtEngineDeleteGas(e, id) bind(C, name="kvtEngineDeleteGas")
      import :: c_ptr, c_int32_t
      type(c_ptr), value :: e
      integer(c_int32_t), value :: id
      integer(c_int32_t) :: kvtEngineDeleteGas
    end function kvtEngineDeleteGas
    function kvtFunctionCount() bind(C, name="kvtFunctionCount")
      import :: c_int32_t
      integer(c_int32_t) :: kvtFunctionCount
    end function kvtFunctionCount
    function kvtFunctionAt(i) bind(C, name="kvtFunctionAt")
      import :: c_ptr, c_int32_t
      integer(c_int32_t), value :: i
      type(c_ptr) :: kvtFunctionAt
    end function kvtFunctionAt
    function kvtFunctionFind(name) bind(C, name="kvtFunctionFind")
      import :: c_ptr, c_char
      character(kind=c_char), intent(in) :: name(*)
      type(c_ptr) :: kvtFunctionFind
    end function kvtFunctionFind
    function kvtErrorMessage(code) bind(C, name="kvtErrorMessage")
      import :: c_ptr, c_int32_t
      integer(c_int32_t), value :: code
      type(c_ptr) :: kvtErrorMessage
    end function kvtErrorMessage
    function kvtRangeText(rule) bind(C, name="kvtRangeText")
      import :: c_ptr, c_char
      character(kind=c_char), intent(in) :: rule(*)
      type(c_ptr) :: kvtRangeText
    end function kvtRangeText
    ! args(i) = c_loc of argument i's values; strides = c_null_ptr (all 1) or
    ! c_loc of a c_size_t array (0 repeats one value); codes may be c_null_ptr.
    function kvtEval(e, name, n, args, strides, out, codes, threads) bind(C, name="kvtEval")
      import :: c_ptr, c_char, c_size_t, c_double, c_int32_t, c_int64_t
      type(c_ptr), value :: e
      character(kind=c_char), intent(in) :: name(*)
      integer(c_size_t), value :: n
      type(c_ptr), intent(in) :: args(*)
      type(c_ptr), value :: strides
      real(c_double), intent(out) :: out(*)
      type(c_ptr), value :: codes
      integer(c_int32_t), value :: threads
      integer(c_int64_t) :: kvtEval
    end function kvtEval
    function kvtEvalGas(e, name, gas, n, args, strides, out, codes, threads) bind(C, name="kvtEvalGas")
      import :: c_ptr, c_char, c_size_t, c_double, c_int32_t, c_int64_t
      type(c_ptr), value :: e
      character(kind=c_char), intent(in) :: name(*), gas(*)
      integer(c_size_t), value :: n
      type(c_ptr), intent(in) :: args(*)
      type(c_ptr), value :: strides
      real(c_double), intent(out) :: out(*)
      type(c_ptr), value :: codes
      integer(c_int32_t), value :: threads
      integer(c_int64_t) :: kvtEvalGas
    end function kvtEvalGas
    ! fn from kvtFunctionFind; gas = c_null_ptr or c_loc of a kvt_c text;
    ! outs(j) = c_loc of output j's n values.
    function kvtEvalRow(e, fn, gas, n, args, strides, outs, codes, threads) bind(C, name="kvtEvalRow")
      import :: c_ptr, c_size_t, c_int32_t, c_int64_t
      type(c_ptr), value :: e, fn, gas
      integer(c_size_t), value :: n
      type(c_ptr), intent(in) :: args(*), outs(*)
      type(c_ptr), value :: strides, codes
      integer(c_int32_t), value :: threads
      integer(c_int64_t) :: kvtEvalRow
    end function kvtEvalRow
    ! Any row once on engine e: numbers(:) its numeric arguments (ids as
    ! whole numbers), texts(:) = c_loc of its kvt_c texts (or c_null_ptr),
    ! outputs = c_loc of 2 or 14 reals (or c_null_ptr), text receives a text
    ! result (read it with kvt_f). Returns the engine's last error.
    function kvtEngineCall(e, fn, numbers, texts, result, outputs, text) bind(C, name="kvtEngineCall")
      import :: c_ptr, c_double, c_int32_t
      type(c_ptr), value :: e, fn
      real(c_double), intent(in) :: numbers(*)
      type(c_ptr), value :: texts
      real(c_double), intent(out) :: result
      type(c_ptr), value :: outputs
      type(c_ptr), intent(out) :: text
      integer(c_int32_t) :: kvtEngineCall
    end function kvtEngineCall
    function kvt_strlen(s) bind(C, name="strlen")
      import :: c_ptr, c_size_t
      type(c_ptr), value :: s
      integer(c_size_t) :: kvt_strlen
    end function kvt_strlen
  end interface

contains

  ! A Fortran string as the null-terminated text a C function takes.
  function kvt_c(text) result(c)
    character(len=*), intent(in) :: text
    character(kind=c_char, len=len_trim(text) + 1) :: c
    c = trim(text) // c_null_char
  end function kvt_c

  ! The text at a pointer the library returned (8-bit), as a Fortran
  ! string; empty for a null pointer.
  function kvt_f(p) result(text)
    type(c_ptr), intent(in) :: p
    character(len=:), allocatable :: text
    character(kind=c_char), pointer :: chars(:)
    integer :: i, n
    if (.not. c_associated(p)) then
      text = ""
      return
    end if
    n = int(kvt_strlen(p))
    call c_f_pointer(p, chars, [n])
    allocate(character(len=n) :: text)
    do i = 1, n
      text(i:i) = chars(i)
    end do
  end function kvt_f

end module kvtcore
"""


def module(rows, stdcall):
    out = HEAD.split("\n")
    out.append("    ! ---- The exports of kvtcore.h, one per catalogue row ----")
    for r in rows:
        out += interface(r, stdcall)
    out += BATCH.split("\n")
    return "\n".join(out)


def main():
    args = [a for a in sys.argv[1:] if not a.startswith("--")]
    if len(args) != 1:
        sys.exit("usage: make_fortran.py OUTPUT.f90 [--stdcall]")
    with open(args[0], "w", encoding="ascii") as f:
        f.write(module(catalogue.read(), "--stdcall" in sys.argv))


if __name__ == "__main__":
    main()
