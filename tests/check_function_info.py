"""kvtFunctionInfo against tools/catalogue.py: the same rows in the same
order, and for each the same fields, evaluable included.

    python3 tests/check_function_info.py path/to/print_functions
"""
import os
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tools"))
import catalogue  # noqa: E402


def expected(r):
    inputs = r.inputs
    if r.shape in ("P2", "M1", "M2"):
        outs = [(a.name, a.unit) for a in r.outputs]
    else:
        outs = [("value", r.result_unit)]
    gas = 0
    if r.name.startswith("kvtg"):
        gas = 2 if any(a.ctype == "const char*" for a in inputs) else 1
    return "|".join([str(r.ordinal), r.name, r.shape, r.rule, r.result, str(gas),
                     str(int(r.evaluable)), str(len(inputs)), str(len(outs)),
                     ",".join(a.name for a in inputs), ",".join(a.unit for a in inputs),
                     ",".join(n for n, _ in outs), ",".join(u for _, u in outs)]) + "|"


def main():
    want = [expected(r) for r in catalogue.read()]
    got = subprocess.run([sys.argv[1]], check=True, capture_output=True, text=True).stdout.splitlines()
    bad = [(w, g) for w, g in zip(want, got) if w != g]
    for w, g in bad[:10]:
        print(f"catalogue.py: {w}\nkvtFunction: {g}\n")
    if bad or len(want) != len(got):
        print(f"{len(bad)} rows differ; {len(want)} rows in the catalogue, {len(got)} listed")
        return 1
    print(f"{len(got)} rows agree, {sum(r.evaluable for r in catalogue.read())} evaluable")
    return 0


if __name__ == "__main__":
    sys.exit(main())
