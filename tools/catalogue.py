"""The catalogue of include/kvtcore.h, read for the generators.

Every generated file (bindings, reference pages, signatures) reads the rows
through this module, so the header stays the one place where an export is
described. A row gives its ordinal, name, shape, range rule, core, arguments
with their C types and units, and result; the C types come from the shape
macros of the same header.

    python3 tools/catalogue.py            prints one line per row
"""
import os
import re
import sys
from dataclasses import dataclass, field

HEADER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "include", "kvtcore.h")

_ROW = re.compile(r'^\s*X\((\d+), (kvt\w+), (\w+), (\w+), ([^,]+), \((.*)\), "(.*)"\)', re.M)
_SHAPE = re.compile(r"#define KVT_SHAPE_(\w+)\(([^)]*)\)((?:.*\\\n)*.*)")
_OUT14 = re.compile(r"#define KVT_OUT14((?:.*\\\n)*.*)")

# The fourteen outputs of the many-output shapes, in order.
OUT14_UNITS = ["m3/kg", "J/kg", "J/(kg K)", "J/kg", "J/(kg K)", "m/s", "m3/(kg Pa)",
               "J/(kg Pa)", "J/(kg K Pa)", "J/(kg Pa)", "m3/(kg K)", "J/(kg K)",
               "J/(kg K2)", "J/(kg K)"]


@dataclass
class Arg:
    name: str
    ctype: str        # "double", "int32_t", "const char*" or "double*"
    unit: str         # SI unit, "-" for a pure number, "" for ids, texts, modes
    output: bool = False


@dataclass
class Row:
    ordinal: int
    name: str         # the export's name, kvt...
    shape: str
    rule: str
    core: str
    result: str       # what the call returns, with its unit in brackets
    ctype: str        # the C type of the result
    args: list = field(default_factory=list)

    @property
    def short(self):
        """The name without its kvt prefix: HPT, gCPGST."""
        return self.name[3:]

    @property
    def inputs(self):
        return [a for a in self.args if not a.output]

    @property
    def outputs(self):
        return [a for a in self.args if a.output]

    @property
    def result_unit(self):
        m = re.search(r"\[([^\]]*)\]", self.result)
        return m.group(1) if m else ""

    @property
    def evaluable(self):
        """Numbers in (ids and texts as the gas's handle), one number out, no
        side effect on the engine: what the array interface evaluates."""
        return (self.ctype in ("double", "int32_t")
                and not self.outputs
                and self.rule not in ("Getter", "Plain")
                and self.shape in ("D1", "D2", "D3", "D4", "D5", "I2",
                                   "GI0", "GI1", "GI2", "GS0", "GS1", "GS2", "FII", "FSS")
                and not self.core.startswith("Engine::"))


def _split(text):
    return [t.strip() for t in text.split(",") if t.strip()]


def _shapes(header):
    out14 = [p.strip().split() for p in _OUT14.search(header).group(1).replace("\\\n", " ").split(",")]
    shapes = {}
    for m in _SHAPE.finditer(header):
        name, body = m.group(1), m.group(3).replace("\\\n", " ")
        params = _split(m.group(2).replace("\\\n", " "))
        ret, plist = body.split(",", 1)
        plist = plist.strip()[1:-1].replace("KVT_OUT14", ", ".join(" ".join(p) for p in out14))
        types = []
        for p in _split(plist):
            if p == "void":
                continue
            ctype, pname = p.rsplit(" ", 1)
            if pname.startswith("*"):
                ctype, pname = ctype + "*", pname[1:]
            types.append((ctype.replace(" *", "*"), pname))
        shapes[name] = (ret.strip(), params, types)
    return shapes


def read(header=HEADER):
    """Every row of the catalogue, in the order of the header."""
    with open(header, encoding="utf-8") as f:
        text = f.read()
    shapes = _shapes(text)
    rows = []
    for m in _ROW.finditer(text):
        ordinal, name, shape, rule, core, args, result = m.groups()
        ret, params, types = shapes[shape]
        items = [a.strip().strip('"') for a in args.split(",")] if args.strip() else []
        names, units = items[0::2], items[1::2]
        bound = dict(zip(params[0::2], names))
        row = Row(int(ordinal), name, shape, rule, core.strip(), result, ret)
        for i, (ctype, pname) in enumerate(types):
            if pname in bound:
                k = params[0::2].index(pname)
                row.args.append(Arg(bound[pname], ctype, units[k], ctype == "double*"))
            else:  # one of the fourteen outputs
                row.args.append(Arg(pname, ctype, OUT14_UNITS[len(row.outputs)], True))
        rows.append(row)
    return rows


if __name__ == "__main__":
    for r in read(sys.argv[1] if len(sys.argv) > 1 else HEADER):
        params = ", ".join(f"{a.ctype} {a.name}" for a in r.args)
        print(f"{r.ordinal:3d} {r.ctype} {r.name}({params})  -> {r.result}"
              f"{'  [evaluable]' if r.evaluable else ''}")
