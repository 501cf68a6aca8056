"""The Fortran module against the catalogue and kvtcore_batch.h, as the
compiler reads it.

    python3 check_fortran.py GFORTRAN kvtcore.f90

gfortran writes the C prototype of every bind(C) interface of the module
(-fc-prototypes). Every export must be there once, with the C types of its
row's arguments and result, and no other; every function of kvtcore_batch.h
must be there with its number of arguments.
"""
import os
import re
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "tools"))
import catalogue  # noqa: E402

# How gfortran spells the C type of each catalogue type.
C = {"double": "double", "double*": "double *", "int32_t": "int", "const char*": "const char *",
     "const char16_t*": "void *"}
PROTO = re.compile(r"^(.*?[\w*]) ?(\w+) \((.*)\);$")
BATCH = re.compile(r"KVT_BATCH_API [^(;]*?\**(\w+)\(([^;]*?)\);", re.S)


def main():
    gfortran, source = sys.argv[1], os.path.abspath(sys.argv[2])
    with tempfile.TemporaryDirectory() as tmp:
        run = subprocess.run([gfortran, "-fc-prototypes", "-fsyntax-only", source], cwd=tmp,
                             capture_output=True, text=True, check=True)
    protos = {}
    for line in run.stdout.splitlines():
        m = PROTO.match(line)
        if m:
            params = [p.rsplit(" ", 1)[0] + (" *" if p.rsplit(" ", 1)[1][0] == "*" else "")
                      for p in m.group(3).split(", ") if p]
            if m.group(2) in protos:
                print(f"{m.group(2)} declared twice")
                protos[m.group(2)] = None
            else:
                protos[m.group(2)] = (m.group(1).strip(), params)
    failures = 0
    rows = catalogue.read()
    for row in rows:
        want = (C[row.ctype].replace("const char *", "void *"), [C[a.ctype] for a in row.args])
        got = protos.pop(row.name, None)
        if got != want:
            print(f"{row.name}: {got} against {want}")
            failures += 1
    with open(os.path.join(HERE, "..", "..", "include", "kvtcore_batch.h")) as f:
        batch = BATCH.findall(f.read())
    for name, params in batch:
        count = 0 if params.strip() == "void" else params.count(",") + 1
        got = protos.pop(name, None)
        if got is None or len(got[1]) != count:
            print(f"{name}: {got} against {count} arguments")
            failures += 1
    protos.pop("strlen", None)
    for name in protos:
        print(f"{name}: in the module, in neither header")
        failures += 1
    print(f"{len(rows)} exports, {len(batch)} batch functions, {failures} failures")
    sys.exit(1 if failures or not batch else 0)


if __name__ == "__main__":
    main()
