"""The module-definition file of an import library for the x86 DLL.

    python3 cmake/stdcall_imports.py OUTPUT.def

The x86 kvtcore6.dll exports its __stdcall functions undecorated (kvtHPT),
while a C program that calls them asks for kvtHPT@16, the bytes of its
arguments after the @. This file lists every export so decorated; dlltool -k
makes of it an import library that maps each decorated name to the plain one.
"""
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tools"))
import catalogue  # noqa: E402

with open(sys.argv[1], "w") as f:
    f.write("LIBRARY kvtcore6.dll\nEXPORTS\n")
    for row in catalogue.read():
        size = sum(8 if a.ctype == "double" else 4 for a in row.args)
        f.write(f"  {row.name}@{size}\n")
