# Writes the Windows module-definition file from the catalogue in the public
# header: every row "X(ordinal, name, ..." becomes "name @ordinal". The names
# are undecorated; on x86 the linker finds the __stdcall symbol name@N for
# each of them (--enable-stdcall-fixup). Run as
#   cmake -DHEADER=kvtcore.h -DOUTPUT=kvtcore6.def -P module_definition.cmake
file(READ "${HEADER}" header)
string(REGEX MATCHALL "X\\([0-9]+, kvt[A-Za-z0-9]+," rows "${header}")
list(LENGTH rows n)
if(n EQUAL 0)
  message(FATAL_ERROR "no catalogue rows in ${HEADER}")
endif()
set(out "; Generated from the catalogue in include/kvtcore.h; do not edit.\nLIBRARY kvtcore6.dll\nEXPORTS\n")
foreach(row IN LISTS rows)
  string(REGEX REPLACE "X\\(([0-9]+), (kvt[A-Za-z0-9]+)," "\\2 @\\1" entry "${row}")
  string(APPEND out "  ${entry}\n")
endforeach()
if(EXISTS "${OUTPUT}")
  file(READ "${OUTPUT}" old)
  if(old STREQUAL out)
    return()
  endif()
endif()
file(WRITE "${OUTPUT}" "${out}")
