"""The spreadsheet module against the catalogue.

    python3 check_vba.py kvtcore.bas [checked-in copy]

In both branches of #If VBA7 every export has exactly one Declare line with
its name, the DLL, its arguments in order with the VBA type of their C type,
and its result type; no other function of the DLL is declared. Every export
has a worksheet function kvt_NAME that takes its inputs and calls it. No two
procedures, and no two names within one signature, differ only by case (VBA
would refuse the module), and no Declare follows a procedure. A checked-in copy must equal the generated one.
"""
import os
import re
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools"))
import catalogue  # noqa: E402

# C type -> (passing, VBA type) of an argument; result types per branch.
ARGS = {"double": ("ByVal", "Double"), "double*": ("ByRef", "Double"),
        "int32_t": ("ByVal", "Long"), "const char*": ("ByVal", "String")}
RESULT = {"double": ("Double", "Double"), "int32_t": ("Long", "Long"),
          "const char*": ("LongPtr", "Long"), "const char16_t*": ("LongPtr", "Long")}

DECLARE = re.compile(r'^Public Declare (PtrSafe )?Function (\w+) Lib "kvtcore6\.dll" \((.*)\) As (\w+)$')
FUNCTION = re.compile(r"^Public Function kvt_(\w+)\((.*)\) As Variant$")
PROCEDURE = re.compile(r"^(?:Public |Private )?(?:Declare (?:PtrSafe )?)?(?:Function|Sub) (\w+)")
PARAM = re.compile(r"^(ByVal|ByRef) (\w+) As (\w+)$")

failures = []


def fail(text):
    failures.append(text)


def params(text):
    out = [PARAM.match(p.strip()) for p in text.split(",")] if text else []
    if None in out:
        return None
    return [m.groups() for m in out]


def check_branch(lines, vba7, rows):
    declared = {}
    for line in lines:
        m = DECLARE.match(line)
        if not m:
            continue
        if bool(m.group(1)) != vba7:
            fail(f"{m.group(2)}: PtrSafe {'missing' if vba7 else 'in the old branch'}")
        if m.group(2) in declared:
            fail(f"{m.group(2)} declared twice")
        declared[m.group(2)] = (params(m.group(3)), m.group(4))
    for row in rows:
        if row.name not in declared:
            fail(f"{row.name}: no Declare (VBA7={vba7})")
            continue
        got, result = declared.pop(row.name)
        want = [ARGS[a.ctype] for a in row.args]
        if got is None or [(g[0], g[2]) for g in got] != want:
            fail(f"{row.name} (VBA7={vba7}): arguments {got} against {want}")
        if result != RESULT[row.ctype][0 if vba7 else 1]:
            fail(f"{row.name} (VBA7={vba7}): result {result}")
    for name in declared:
        fail(f"{name}: declared but not in the catalogue")


def view(lines, vba7):
    """The module as VBA compiles it with VBA7 true or false (#If Win64
    blocks hold no declarations and are kept whole)."""
    out, keep, stack = [], True, []
    for line in lines:
        if line == "#If VBA7 Then":
            stack.append(keep)
            keep = vba7
        elif line == "#Else" and stack:
            keep = not vba7
        elif line == "#End If" and stack:
            keep = stack.pop()
        elif keep:
            out.append(line)
    return out


def main():
    text = open(sys.argv[1], encoding="ascii", newline="").read()
    if "\n" in text.replace("\r\n", ""):
        fail("line ends are not CR LF throughout")
    lines = text.split("\r\n")
    rows = catalogue.read()
    # In each view: every export declared right, no procedure twice (VBA
    # names are case-insensitive), and no Declare after a procedure.
    for vba7 in (True, False):
        seen = view(lines, vba7)
        check_branch(seen, vba7, rows)
        names = [m.group(1).lower() for m in map(PROCEDURE.match, seen) if m]
        for n in {n for n in names if names.count(n) > 1}:
            fail(f"procedure {n} defined twice (VBA7={vba7})")
        declares = [i for i, line in enumerate(seen) if re.match(r"(Public|Private) Declare ", line)]
        procedures = [i for i, line in enumerate(seen) if PROCEDURE.match(line) and " Declare " not in line]
        if declares and procedures and max(declares) > min(procedures):
            fail(f"a Declare line stands after a procedure (VBA7={vba7})")

    functions = {}
    for i, line in enumerate(lines):
        m = FUNCTION.match(line)
        if m:
            body = "\n".join(lines[i + 1:lines.index("End Function", i)])
            functions[m.group(1)] = (params(m.group(2)), body)
    for row in rows:
        got, body = functions.pop(row.short, (None, ""))
        want = [ARGS[a.ctype] for a in row.inputs]
        if got is None or [(g[0], g[2]) for g in got] != want:
            fail(f"kvt_{row.short}: arguments {got} against {want}")
        elif f"{row.name}(" not in body or not all(g[1] in body for g in got):
            fail(f"kvt_{row.short} does not call {row.name} with its arguments")
    for name in functions:
        fail(f"kvt_{name}: worksheet function of no export")

    # Names within one signature (with the outputs' array o) differ by more than case.
    for line in lines:
        m = DECLARE.match(line) or FUNCTION.match(line)
        if m:
            lowered = [p[1].lower() for p in params(m.group(m.lastindex - 1 if m.re is DECLARE else 2)) or []]
            if len(set(lowered + ["o"])) != len(lowered) + 1:
                fail(f"names repeat within {line[:60]}")

    if len(sys.argv) > 2 and open(sys.argv[2], encoding="ascii", newline="").read() != text:
        fail(f"{sys.argv[2]} differs from a fresh generation: run make_vba.py on it")

    for f in failures[:40]:
        print(f)
    print(f"{len(rows)} exports, {len(failures)} failures")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
