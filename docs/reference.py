#!/usr/bin/python3
"""Writes the function reference from the catalogue: reference.html and the
man pages kvtcalc.1 and kvtcore.3.

Every function's entry comes from its catalogue row (tools/catalogue.py) and
from `kvtcalc help NAME`, which prints the range from the rules' own constants
(kvtRangeText), the error codes the function gave when probed, and an example
that the library computes now. The guides are docs/install.md and docs/guides/*.md; their
{{placeholders}} are tables made here, some of them measured on the library.

    reference.py --kvtcalc build/kvtcalc --lib build/libkvtcore.so --out DIR
    reference.py --check DIR --kvtcalc build/kvtcalc    the test
"""
import argparse
import concurrent.futures
import ctypes
import glob
import html
import math
import os
import re
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "tools"))
import catalogue  # noqa: E402

# ---------------------------------------------------------------- the library


def kvtcalc_help(kvtcalc, name):
    """The fields of `kvtcalc help NAME`: range, codes, example and its values."""
    out = subprocess.run([kvtcalc, "help", name], capture_output=True, text=True, check=True).stdout
    info = {"codes": [], "example": None, "values": []}
    lines = out.splitlines()
    for i, line in enumerate(lines):
        if line.startswith("range:"):
            info["range"] = re.sub(r" \(rule \w+\)$", "", line[6:].strip())
        elif re.match(r"^  +\d+  ", line) and info["example"] is None:
            code, meaning = line.strip().split("  ", 1)
            info["codes"].append((int(code), meaning.strip()))
        elif line.startswith("example:"):
            info["example"] = line[8:].strip()
            info["values"] = [v.strip() for v in lines[i + 1:]]
            break
    return info


class Library:
    """The freshly built library, for the measured tables."""

    def __init__(self, path):
        self.lib = ctypes.CDLL(path)
        for row in catalogue.read():
            if row.shape in ("D1", "D2", "D3") and row.ctype == "double":
                f = getattr(self.lib, row.name)
                f.restype = ctypes.c_double
                f.argtypes = [ctypes.c_double] * len(row.inputs)
        self.lib.kvtGETLASTERROR.restype = ctypes.c_int32
        self.lib.kvtErrorMessage.restype = ctypes.c_char_p
        self.lib.kvtRangeText.restype = ctypes.c_char_p
        self.lib.kvtRangeText.argtypes = [ctypes.c_char_p]
        self.lib.kvtPTHS.argtypes = [ctypes.c_double, ctypes.c_double,
                                     ctypes.POINTER(ctypes.c_double), ctypes.POINTER(ctypes.c_double)]
        self.lib.kvtPTHS.restype = ctypes.c_double

    def call(self, name, *args):
        v = getattr(self.lib, name)(*args)
        return None if v == -1.0 and self.lib.kvtGETLASTERROR() != 0 else v

    def pths(self, h, s):
        p, t = ctypes.c_double(), ctypes.c_double()
        r = self.lib.kvtPTHS(h, s, ctypes.byref(p), ctypes.byref(t))
        return None if r == -1.0 and self.lib.kvtGETLASTERROR() != 0 else (p.value, t.value)


def num(v, digits=4):
    return f"{v:.{digits}g}"


def error_table(lib):
    rows = [["Code", "Meaning"]]
    for code in (0, 1, 2, 3, 4, 8, 11):
        rows.append([str(code), lib.lib.kvtErrorMessage(code).decode()])
    return rows


def range_table(lib, rows):
    used = []
    for r in rows:
        if r.rule not in used:
            used.append(r.rule)
    table = [["Rule", "Valid range", "Functions"]]
    for rule in used:
        names = [r.name for r in rows if r.rule == rule]
        some = ", ".join(names[:4]) + (f" and {len(names) - 4} more" if len(names) > 4 else "")
        table.append([rule, lib.lib.kvtRangeText(rule.encode()).decode(), some])
    return table


def ph_bounds(lib):
    table = [["p [Pa]", "h from [J/kg]", "h to [J/kg]", "s from [J/(kg K)]", "s to [J/(kg K)]"]]
    tmin, tmax, tsplit = 273.15999999999, 2273.15, 1073.15
    for p in (611.212677444343, 1e5, 1e6, 1e7, 2.2064e7, 5e7, 1e8):
        hi = ("kvtH5PT", "kvtS5PT", tmax) if p <= 1e7 else ("kvtH2PT", "kvtS2PT", tsplit)
        table.append([num(p, 6), num(lib.call("kvtH1PT", p, tmin), 6), num(lib.call(hi[0], p, hi[2]), 6),
                      num(lib.call("kvtS1PT", p, tmin), 6), num(lib.call(hi[1], p, hi[2]), 6)])
    return table


def spread(a, b, n):
    return [a + (b - a) * i / (n - 1) for i in range(n)]


def limits_table(lib):
    """Round trips (p,T) -> (h,s) -> kvtPTHS in the zones of the h,s family."""
    def zone(points, wet=False):
        dt = dp = 0.0
        failed = 0
        at = ""
        for a, b in points:
            if wet:
                t, x = a, b
                h, s = lib.call("kvtHSTX", t, x), lib.call("kvtSSTX", t, x)
                p = lib.call("kvtPST", t)
            else:
                p, t = a, b
                h, s = lib.call("kvtHPT", p, t), lib.call("kvtSPT", p, t)
            if h is None or s is None or p is None:
                continue
            r = lib.pths(h, s)
            if r is None:
                failed += 1
                continue
            if abs(r[1] - t) > dt:
                at = f"T {t:.6g} K, " + (f"x {b:g}" if wet else f"p {p:.4g} Pa")
            dp, dt = max(dp, abs(r[0] - p) / p), max(dt, abs(r[1] - t))
        return len(points), dp, dt, failed, at

    zones = []
    base = [(p, t) for p in (1e5, 1e6, 5e6) for t in (300, 350)] + \
           [(p, t) for p in (1e4, 1e5, 1e6) for t in (700, 900)]
    zones.append(("away from the zones: liquid at 300-350 K, steam at 700-900 K", zone(base)))
    near = []
    for p in (2e3, 1e4, 1e5, 1e6, 3e6, 1e7, 1.6e7, 2e7):
        ts = lib.call("kvtTSP", p)
        near += [(p, ts + d) for d in (-2, -0.5, -0.1, -0.01, 0.01, 0.1, 0.5, 2)]
    zones.append(("single phase within 2 K of saturation, p 2 kPa to 20 MPa", zone(near)))
    b23 = []
    for t in spread(623.15, 863.15, 9):
        p23 = lib.call("kvtP23T", t)
        b23 += [(p23 * f, t) for f in (0.98, 0.995, 0.999, 1.001, 1.005, 1.02) if p23 * f <= 1e8]
    zones.append(("within 2 % in p of the B23 line, 623.15-863.15 K", zone(b23)))
    hot = [(p, t) for p in (1e5, 1e6, 5e6, 1e7) for t in (1073.16, 1073.5, 1075, 1080, 1100)]
    zones.append(("just above 1073.15 K, p 0.1-10 MPa", zone(hot)))
    wet_low = [(t, x) for t in spread(300, 620, 9) for x in (0.1, 0.5, 0.9, 0.99)]
    zones.append(("wet steam below 623.15 K, x 0.1-0.99", zone(wet_low, wet=True)))
    for xs in ((0.1, 0.3, 0.5, 0.7), (0.8, 0.85, 0.9), (0.95, 0.98, 0.99, 0.999)):
        wet = [(t, x) for t in spread(623.15, 646, 10) for x in xs]
        zones.append((f"wet steam above 623.15 K, x {xs[0]}-{xs[-1]}", zone(wet, wet=True)))
    table = [["Zone", "Points", "Largest |dp|/p", "Largest |dT| [K]", "Largest |dT| at", "Failed"]]
    for name, (n, dp, dt, failed, at) in zones:
        table.append([name, str(n), num(dp, 2), num(dt, 2), at, str(failed)])
    return table


def formulation_table(lib):
    try:
        from iapws import iapws97, _iapws
    except ImportError:
        return [["Comparison", "Result"], ["newer releases", "not measured: python3-iapws was not installed"]]
    table = [["Quantity", "This library", "Newer release", "Largest relative difference", "Over"]]

    def worst(pairs):
        return max(abs(a - b) / abs(b) for a, b in pairs if a is not None and b)

    r5 = [(p, t) for p in (1e5, 1e6, 5e6, 1e7) for t in spread(1100, 2273.15, 8)]
    for q, ours, attr in (("h, region 5", "kvtH5PT", "h"), ("s, region 5", "kvtS5PT", "s"),
                          ("cp, region 5", "kvtCP5PT", "cp"), ("v, region 5", "kvtV5PT", "v")):
        scale = 1 if attr == "v" else 1e3
        pairs = [(lib.call(ours, p, t), iapws97._Region5(t, p / 1e6)[attr] * scale) for p, t in r5]
        table.append([q, "IF97 region 5, 1997", "IF97 region 5, 2007 revision",
                      f"{worst(pairs):.2e}", "0.1-10 MPa, 1100-2273 K"])
    grid = [(p, t) for p in (1e5, 1e6, 1e7, 5e7) for t in spread(280, 1000, 10)]
    pairs_mu, pairs_k = [], []
    for p, t in grid:
        rho = lib.call("kvtVPT", p, t)
        if rho is None:
            continue
        rho = 1 / rho
        pairs_mu.append((lib.call("kvtDYNVISRT", rho, t), _iapws._Viscosity(rho, t)))
        pairs_k.append((lib.call("kvtTHERMCONDRT", rho, t), _iapws._ThCond(rho, t)))
    table.append(["viscosity", "IAPS 1985", "IAPWS 2008", f"{worst(pairs_mu):.2e}", "0.1-50 MPa, 280-1000 K"])
    table.append(["thermal conductivity", "IAPS 1985", "IAPWS 2011 (no critical enhancement)",
                  f"{worst(pairs_k):.2e}", "0.1-50 MPa, 280-1000 K"])
    sub = [(lib.call("kvtPSUBT", t), _iapws._Sublimation_Pressure(t) * 1e6) for t in spread(200, 273.15, 12)]
    table.append(["sublimation pressure", "IAPWS 1993", "IAPWS 2011", f"{worst(sub):.2e}", "200-273.15 K"])
    melt = [(lib.call("kvtPMELTIT", t), _iapws._Melting_Pressure(t) * 1e6) for t in spread(252, 273.15, 12)]
    table.append(["melting pressure, ice Ih", "IAPWS 1993", "IAPWS 2011", f"{worst(melt):.2e}", "252-273.15 K"])
    return table

# ---------------------------------------------------------------- documents


def inline_html(text):
    text = html.escape(text, quote=False)
    return re.sub(r"`([^`]+)`", r"<code>\1</code>", text)


def blocks(text):
    """A guide as blocks: ('h1'|'h2', text), ('p', text), ('pre', text),
    ('ul', [items]), ('table', rows)."""
    out, lines, i = [], text.splitlines(), 0
    while i < len(lines):
        line = lines[i]
        if not line.strip():
            i += 1
        elif line.startswith("```"):
            j = i + 1
            while not lines[j].startswith("```"):
                j += 1
            out.append(("pre", "\n".join(lines[i + 1:j])))
            i = j + 1
        elif line.startswith("#"):
            level = len(line) - len(line.lstrip("#"))
            out.append((f"h{level}", line.lstrip("#").strip()))
            i += 1
        elif line.startswith("|"):
            rows = []
            while i < len(lines) and lines[i].startswith("|"):
                cells = [c.strip() for c in lines[i].strip().strip("|").split("|")]
                if not all(re.fullmatch(r"-+", c) for c in cells):
                    rows.append(cells)
                i += 1
            out.append(("table", rows))
        elif line.startswith("- "):
            items = []
            while i < len(lines) and (lines[i].startswith("- ") or lines[i].startswith("  ")):
                if lines[i].startswith("- "):
                    items.append(lines[i][2:])
                else:
                    items[-1] += " " + lines[i].strip()
                i += 1
            out.append(("ul", items))
        elif re.fullmatch(r"\{\{\w+\}\}", line.strip()):
            out.append(("place", line.strip()[2:-2]))
            i += 1
        else:
            para = []
            while i < len(lines) and lines[i].strip() and not lines[i].startswith(("|", "```", "#", "- ")):
                para.append(lines[i].strip())
                i += 1
            out.append(("p", " ".join(para)))
    return out


def html_table(rows, cls=""):
    head = "".join(f"<th>{inline_html(c)}</th>" for c in rows[0])
    body = "".join("<tr>" + "".join(f"<td>{inline_html(c)}</td>" for c in r) + "</tr>" for r in rows[1:])
    return f'<table class="{cls}"><thead><tr>{head}</tr></thead><tbody>{body}</tbody></table>'


def blocks_html(bs, tables):
    out = []
    for kind, value in bs:
        if kind in ("h1", "h2", "h3"):
            anchor = re.sub(r"\W+", "-", value.lower()).strip("-")
            out.append(f'<{kind} id="{anchor}">{inline_html(value)}</{kind}>')
        elif kind == "p":
            out.append(f"<p>{inline_html(value)}</p>")
        elif kind == "pre":
            out.append(f"<pre>{html.escape(value)}</pre>")
        elif kind == "ul":
            out.append("<ul>" + "".join(f"<li>{inline_html(x)}</li>" for x in value) + "</ul>")
        elif kind == "table":
            out.append(html_table(value))
        elif kind == "place":
            out.append(html_table(tables[value], "wide"))
    return "\n".join(out)


def roff_text(text):
    text = text.replace("\\", "\\e").replace("-", "\\-")
    text = re.sub(r"`([^`]+)`", r"\\fB\1\\fR", text)
    return "\n".join(("\\&" + l if l.startswith((".", "'")) else l) for l in text.split("\n"))


def blocks_roff(bs, tables):
    out = []
    for kind, value in bs:
        if kind == "h1":
            out.append(f".SH {roff_text(value.upper())}")
        elif kind in ("h2", "h3"):
            out.append(f".SS {roff_text(value)}")
        elif kind == "p":
            out.append(".PP\n" + roff_text(value))
        elif kind == "pre":
            out.append(".PP\n.nf\n.RS 2\n" + roff_text(value) + "\n.RE\n.fi")
        elif kind == "ul":
            for x in value:
                out.append(".IP \\(bu 2\n" + roff_text(x))
        elif kind in ("table", "place"):
            rows = value if kind == "table" else tables[value]
            for r in rows[1:]:
                out.append(".TP\n" + roff_text(r[0]) + "\n" + roff_text("; ".join(
                    f"{h}: {c}" for h, c in zip(rows[0][1:], r[1:]))))
    return "\n".join(out)

# ---------------------------------------------------------------- functions


def groups(header_text, rows):
    """Each row's group, from the catalogue's '---- name ----' comments."""
    marks = [(m.start(), m.group(1)) for m in re.finditer(r"/\* ---- (.*?) ---- \*/", header_text)]
    place = {m.group(1): m.start() for m in re.finditer(r"X\(\d+, (kvt\w+),", header_text)}
    out = {}
    for r in rows:
        name = "Other"
        for pos, g in marks:
            if pos < place[r.name]:
                name = g
        out[r.name] = name
    return out


def prototype(r):
    params = ", ".join(f"{a.ctype} {a.name}" for a in r.args) or "void"
    return f"{r.ctype} {r.name}({params});"


def unit_text(a):
    return f"{a.name} [{a.unit}]" if a.unit else a.name


def function_html(r, info):
    args = "".join(f"<tr><td><code>{html.escape(a.name)}</code></td><td>{html.escape(a.unit or '')}</td>"
                   f"<td>{html.escape(a.ctype)}</td><td>{'output' if a.output else 'input'}</td></tr>"
                   for a in r.args)
    codes = "".join(f"<li><b>{c}</b> {html.escape(m)}</li>" for c, m in info["codes"]) or \
        "<li>none: the call cannot fail</li>"
    example = ""
    if info["example"]:
        example = (f'<p class="ex">Example: <code>{html.escape(info["example"])}</code> gives '
                   + ", ".join(f'<code class="value">{html.escape(v)}</code>' for v in info["values"]) + "</p>")
    argtable = (f'<table class="args"><thead><tr><th>Argument</th><th>Unit</th><th>C type</th><th></th>'
                f"</tr></thead><tbody>{args}</tbody></table>") if r.args else ""
    return (f'<section class="fn" id="{r.name}"><h3>{r.name} <span class="ord">ordinal {r.ordinal}</span></h3>'
            f"<pre>{html.escape(prototype(r))}</pre>"
            f"<p>Returns {html.escape(r.result)}.</p>{argtable}"
            f'<p><b>Valid range</b> (rule {r.rule}): {html.escape(info["range"])}</p>'
            f'<p><b>Error codes</b></p><ul class="codes">{codes}</ul>{example}</section>')


def function_roff(r, info):
    lines = [f".TP\n.B {r.name}", roff_text(prototype(r)) + "\n.br",
             roff_text(f"Returns {r.result}. Ordinal {r.ordinal}.") + "\n.br",
             roff_text("Arguments: " + (", ".join(unit_text(a) for a in r.args) or "none") + ".") + "\n.br",
             roff_text(f"Range ({r.rule}): {info['range']}.") + "\n.br",
             roff_text("Codes: " + (", ".join(f"{c} {m}" for c, m in info["codes"]) or "none") + ".")]
    if info["example"]:
        lines.append(".br\n" + roff_text(f"Example: {info['example']} gives {', '.join(info['values'])}."))
    return "\n".join(lines)


CSS = """
body{font:15px/1.5 "DejaVu Sans",sans-serif;margin:0;color:#1d2430;background:#fff}
nav{position:fixed;top:0;left:0;bottom:0;width:250px;overflow:auto;background:#f3f5f8;
 border-right:1px solid #d8dde5;padding:16px;box-sizing:border-box;font-size:13px}
nav a{display:block;color:#23508c;text-decoration:none;padding:1px 0}
nav h2{font-size:13px;margin:14px 0 4px;color:#555;text-transform:uppercase;letter-spacing:.04em}
main{margin-left:250px;padding:8px 40px 60px;max-width:1000px}
h1{font-size:26px;border-bottom:2px solid #23508c;padding-bottom:4px}
h2{font-size:20px;margin-top:34px;border-bottom:1px solid #d8dde5}
h3{font-size:16px;margin:0 0 4px}
code,pre{font-family:"DejaVu Sans Mono",monospace;font-size:13px}
pre{background:#f6f8fa;border:1px solid #e1e5eb;padding:8px 10px;overflow:auto}
table{border-collapse:collapse;margin:8px 0}
th,td{border:1px solid #d8dde5;padding:3px 8px;text-align:left;vertical-align:top}
th{background:#eef2f7}
section.fn{border:1px solid #d8dde5;border-radius:4px;padding:10px 14px;margin:12px 0}
section.fn pre{margin:4px 0}
.ord{font-weight:normal;color:#777;font-size:13px;margin-left:8px}
ul.codes{margin:2px 0;padding-left:22px}
p.ex{background:#f1f8f1;border-left:3px solid #3a8a3a;padding:4px 8px}
"""


def write_reference(args):
    header_text = open(catalogue.HEADER, encoding="utf-8").read()
    rows = catalogue.read()
    lib = Library(args.lib)
    with concurrent.futures.ThreadPoolExecutor(max_workers=os.cpu_count() or 2) as pool:
        infos = dict(zip([r.name for r in rows], pool.map(lambda r: kvtcalc_help(args.kvtcalc, r.name), rows)))
    tables = {"error_table": error_table(lib), "range_table": range_table(lib, rows),
              "ph_bounds": ph_bounds(lib), "limits_table": limits_table(lib),
              "formulation_table": formulation_table(lib)}
    files = [os.path.join(HERE, "install.md")] + sorted(glob.glob(os.path.join(HERE, "guides", "*.md")))
    guides = [open(f, encoding="utf-8").read() for f in files]
    guide_blocks = [blocks(g) for g in guides]
    group_of = groups(header_text, rows)
    order = []
    for r in rows:
        if group_of[r.name] not in order:
            order.append(group_of[r.name])

    nav = ['<h2>Guides</h2>'] + [
        f'<a href="#{re.sub(r"[^a-z0-9]+", "-", b[0][1].lower()).strip("-")}">{inline_html(b[0][1])}</a>'
        for b in guide_blocks] + ['<h2>Functions</h2>'] + [
        f'<a href="#group-{i}">{html.escape(g)}</a>' for i, g in enumerate(order)]
    body = [f'<section class="guide" id="guide-{re.sub(r"[^a-z0-9]+", "-", b[0][1].lower()).strip("-")}">'
            f"{blocks_html(b, tables)}</section>" for b in guide_blocks]
    body.append('<h1 id="functions">Functions</h1>')
    for i, g in enumerate(order):
        members = [r for r in rows if group_of[r.name] == g]
        body.append(f'<h2 id="group-{i}">{html.escape(g)}</h2>')
        body += [function_html(r, infos[r.name]) for r in members]
    page = (f'<!DOCTYPE html><html lang="en"><head><meta charset="utf-8"><title>kvtcore reference</title>'
            f"<style>{CSS}</style></head><body><nav><b>kvtcore {args.version}</b>{''.join(nav)}</nav>"
            f"<main>{''.join(body)}</main></body></html>\n")
    os.makedirs(args.out, exist_ok=True)
    with open(os.path.join(args.out, "reference.html"), "w", encoding="utf-8") as f:
        f.write(page)

    date = f'.TH {{0}} {{1}} "" "kvtcore {args.version}" "kvtcore"'
    calc = blocks(open(os.path.join(HERE, "kvtcalc.md"), encoding="utf-8").read())
    with open(os.path.join(args.out, "kvtcalc.1"), "w", encoding="utf-8") as f:
        f.write(date.format("KVTCALC", 1) + "\n" + blocks_roff(calc, tables) + "\n")
    lib3 = [date.format("KVTCORE", 3), ".SH NAME", "kvtcore \\- properties of water, steam and ideal gases"]
    lib3 += [blocks_roff(b, tables) for b in guide_blocks]
    lib3.append(".SH FUNCTIONS")
    for g in order:
        lib3.append(f".SS {roff_text(g)}")
        lib3 += [function_roff(r, infos[r.name]) for r in rows if group_of[r.name] == g]
    lib3 += [".SH SEE ALSO", "kvtcalc(1)"]
    with open(os.path.join(args.out, "kvtcore.3"), "w", encoding="utf-8") as f:
        f.write("\n".join(lib3) + "\n")


def check_reference(args):
    """Every catalogue row has its entry, and every example's value is what
    the library gives now."""
    page = open(os.path.join(args.check, "reference.html"), encoding="utf-8").read()
    man3 = open(os.path.join(args.check, "kvtcore.3"), encoding="utf-8").read()
    problems = []
    rows = catalogue.read()
    for r in rows:
        if f'id="{r.name}"' not in page or f".B {r.name}\n" not in man3:
            problems.append(f"{r.name}: no entry")
        elif html.escape(prototype(r)) not in page:
            problems.append(f"{r.name}: prototype differs")
    for r in rows[::25]:  # a sample: the codes and range shown are kvtcalc's
        info = kvtcalc_help(args.kvtcalc, r.name)
        entry = page[page.find(f'id="{r.name}"'):]
        entry = entry[:entry.find("</section>")]
        for code, meaning in info["codes"]:
            if f"<li><b>{code}</b> {html.escape(meaning)}</li>" not in entry:
                problems.append(f"{r.name}: code {code} missing")
        if html.escape(info["range"]) not in entry:
            problems.append(f"{r.name}: range differs")
    examples = re.findall(r'Example: <code>kvtcalc (.*?)</code> gives (.*?)</p>', page)
    for call, values in examples:
        shown = re.findall(r'<code class="value">(.*?)</code>', values)
        argv = [a.strip('"') for a in re.findall(r'"[^"]*"|\S+', html.unescape(call))]
        out = subprocess.run([args.kvtcalc, "--exact"] + argv, capture_output=True, text=True).stdout.split("\n")
        got = [float(l.split()[-1]) for l in out if l.strip()]
        want = [float(html.unescape(v).split()[-1]) for v in shown]
        if len(got) != len(want) or any(f"{g:.10g}" != f"{w:.10g}" for g, w in zip(got, want)):
            problems.append(f"example {call}: reference {want}, library {got}")
    print(f"{len(rows)} functions, {len(examples)} examples checked")
    for p in problems:
        print("FAIL", p)
    return 1 if problems else 0


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--kvtcalc", required=True)
    ap.add_argument("--lib")
    ap.add_argument("--out")
    ap.add_argument("--version", default="")
    ap.add_argument("--check")
    args = ap.parse_args()
    if args.check:
        return check_reference(args)
    write_reference(args)
    return 0


if __name__ == "__main__":
    sys.exit(main())
