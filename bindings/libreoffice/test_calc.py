"""kvtcore.oxt in a real LibreOffice Calc, headless, used as a person would.

Installs the extension with unopkg into a private user profile, starts
soffice without a display, types formulas over several families into a new
spreadsheet (single cells, array formulas, a failing call), saves it as .ods,
opens it again, recalculates, exports the values as CSV, and compares every
number with the library's own export called through ctypes, to 1e-12
relative. It also checks that the function wizard lists exactly the
catalogue's evaluable rows with their arguments and descriptions.

    /usr/bin/python3 bindings/libreoffice/test_calc.py build/oxt/kvtcore.oxt [--png FILE]

--png also renders the sheet, as printed, to a PNG (the screenshot of
docs/calc.md; needs pdftoppm of poppler-utils).
Run as root, unopkg and soffice run as the user nobody, since unopkg
installs an extension for a user only. soffice is stopped in every case.
"""
import argparse
import contextlib
import csv
import ctypes
import math
import os
import pwd
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import threading
import time
import zipfile

import uno
from com.sun.star.beans import PropertyValue
from com.sun.star.connection import NoConnectException

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)
import make_oxt  # noqa: E402

PROGRAM = "/usr/lib/libreoffice/program"
LIMIT = 300  # seconds for the whole session with soffice
AIR = "N2:0.79;O2:0.21"

# One formula per row: the export and its arguments, the library's value
# from the export itself. The last rows must fail and show an error.
CASES = [
    ("HPT", 3e6, 300.0),             # compressed water by p, T
    ("VPT", 1e5, 700.0),             # superheated steam
    ("WPT", 10e6, 1500.0),           # high-temperature region
    ("TPH", 3e6, 3.0e6),             # by p, h
    ("SPH", 1e6, 1.0e6),             # wet, by p, h
    ("PHS", 3.0e6, 6.5e3),           # by h, s
    ("THS", 2.6e6, 7.0e3),
    ("HSTX", 373.15, 0.5),           # wet steam by T, x
    ("PST", 450.0),                  # saturation line
    ("THERMCONDPT", 1e5, 500.0),     # transport
    ("WATERSTATEAREAPH", 3e6, 1e5),  # an integer result
    ("gCPGST", AIR, 500.0),          # a gas by its text
    ("gHIDT", 0, 800.0),             # a gas by its id
    ("gMMGS", "CO2"),
    ("gVFGSGS", AIR, "O2"),          # two texts: a fraction of a mixture
]
FAILING = [
    ("HPT", -1.0, 300.0),            # no state at a negative pressure
    ("gCPGST", "N2:xyz", 500.0),     # a text that does not parse
]
# Array formulas, one row per point: p and T down columns give HPT down a
# column; p down a column against T along a row gives a table; a column of
# gas texts gives cp of each.
P = [1e5, 3e6, 20e6, -1.0]
T = [300.0, 500.0, 700.0, 900.0]
T_ROW = [350.0, 650.0]
GASES = ["N2", "CO2", AIR, "nonsense"]


def formula(name, args):
    text = [f'"{a}"' if isinstance(a, str) else repr(int(a)) if float(a).is_integer() else repr(a)
            for a in args]
    return f"=KVT_{name.upper()}({';'.join(text)})"


class Library:
    """The exports of the libkvtcore.so inside the extension, for the expected values."""

    def __init__(self, path):
        self.lib = ctypes.CDLL(path)
        self.lib.kvtGETLASTERROR.restype = ctypes.c_int32
        self.lib.kvtSETLASTERROR.argtypes = [ctypes.c_int32]
        self.rows = {r.short: r for r in make_oxt.functions()}

    def __call__(self, name, *args):
        row = self.rows[name]
        ctype = {"double": ctypes.c_double, "int32_t": ctypes.c_int32, "const char*": ctypes.c_char_p}
        f = getattr(self.lib, row.name)
        f.restype, f.argtypes = ctype[row.ctype], [ctype[a.ctype] for a in row.inputs]
        self.lib.kvtSETLASTERROR(0)
        value = f(*[a.encode() if isinstance(a, str) else a for a in args])
        return None if self.lib.kvtGETLASTERROR() else float(value)


def prop(name, value):
    p = PropertyValue()
    p.Name, p.Value = name, value
    return p


class Office:
    """soffice, headless with a private profile, for as long as the block runs."""

    def __init__(self, work, oxt):
        self.work = work
        self.profile = "file://" + os.path.join(work, "profile")
        user = pwd.getpwnam("nobody") if os.geteuid() == 0 else None
        self.run_as = dict(user=user.pw_uid, group=user.pw_gid) if user else {}
        if user:
            os.chown(work, user.pw_uid, user.pw_gid)
        self.env = dict(os.environ, HOME=work)
        self.oxt = os.path.join(work, "kvtcore.oxt")
        shutil.copy(oxt, self.oxt)
        self.process = None

    def tool(self, name, *args, timeout=120):
        return subprocess.run([os.path.join(PROGRAM, name), f"-env:UserInstallation={self.profile}", *args],
                              env=self.env, timeout=timeout, capture_output=True, text=True,
                              check=True, **self.run_as)

    def __enter__(self):
        self.tool("unopkg", "add", self.oxt)
        listed = self.tool("unopkg", "list").stdout
        assert "org.kvtcore.calc" in listed, listed
        with socket.socket() as s:
            s.bind(("127.0.0.1", 0))
            port = s.getsockname()[1]
        self.process = subprocess.Popen(
            [os.path.join(PROGRAM, "soffice"), f"-env:UserInstallation={self.profile}", "--headless",
             "--invisible", "--norestore", "--nologo",
             f"--accept=socket,host=127.0.0.1,port={port};urp;"],
            env=self.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            start_new_session=True, **self.run_as)
        # A call into soffice that never returns cannot be interrupted from
        # Python: past the limit, stop soffice from a thread and fail.
        self.watchdog = threading.Timer(LIMIT, self.abandon)
        self.watchdog.daemon = True
        self.watchdog.start()
        try:
            self.connect(port)
        except BaseException:
            self.__exit__()
            raise
        return self

    def connect(self, port):
        local = uno.getComponentContext()
        resolver = local.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", local)
        deadline = time.monotonic() + 60
        while True:
            try:
                self.ctx = resolver.resolve(
                    f"uno:socket,host=127.0.0.1,port={port};urp;StarOffice.ComponentContext")
                break
            except NoConnectException:
                if time.monotonic() > deadline or self.process.poll() is not None:
                    raise
                time.sleep(0.5)
        self.desktop = self.create("com.sun.star.frame.Desktop")

    def create(self, service):
        return self.ctx.ServiceManager.createInstanceWithContext(service, self.ctx)

    def abandon(self):
        print(f"FAIL soffice did not finish within {LIMIT} s", flush=True)
        os.killpg(self.process.pid, signal.SIGKILL)
        shutil.rmtree(self.work, ignore_errors=True)
        os._exit(1)

    def __exit__(self, *exc):
        if self.process is None:
            return
        with contextlib.suppress(Exception):
            self.desktop.terminate()
        try:
            self.process.wait(timeout=30)
        except subprocess.TimeoutExpired:
            os.killpg(self.process.pid, signal.SIGKILL)   # its own session: soffice and soffice.bin
            self.process.wait(timeout=30)
        self.watchdog.cancel()
        self.process = None

    def remove(self):
        """unopkg remove, as a user takes the extension away again."""
        self.tool("unopkg", "remove", "org.kvtcore.calc")
        return "org.kvtcore.calc" not in self.tool("unopkg", "list").stdout

    def load(self, path):
        return self.desktop.loadComponentFromURL(uno.systemPathToFileUrl(path), "_blank", 0,
                                                 (prop("Hidden", True),))

    def new_sheet(self):
        return self.desktop.loadComponentFromURL("private:factory/scalc", "_blank", 0,
                                                 (prop("Hidden", True),))


def write_sheet(doc):
    """The sheet a user would type: a formula's text beside the formula."""
    sheet = doc.Sheets.getByIndex(0)
    cell = sheet.getCellByPosition
    for i, (name, *args) in enumerate(CASES + FAILING):
        cell(0, i).setString(formula(name, args)[1:])
        cell(1, i).setFormula(formula(name, args))
    top = len(CASES + FAILING) + 5           # the array block's heading row
    first, last = top + 2, top + 1 + len(P)  # its rows, as Calc numbers them
    arrays = [f"C{first}:C{last}", f"=KVT_HPT(A{first}:A{last};B{first}:B{last})",
              f"D{first}:E{last}", f"=KVT_HPT(A{first}:A{last};D{top + 1}:E{top + 1})",
              f"G{first}:G{last}", f"=KVT_GCPGST(F{first}:F{last};B{first}:B{last})"]
    for i, (where, text) in enumerate(zip(arrays[0::2], arrays[1::2])):
        cell(0, top - 4 + i).setString(f"{where}: {{{text}}}  (an array formula: Ctrl+Shift+Enter)")
    for c, heading in enumerate(["p [Pa]", "T [K]", "h [J/kg]", T_ROW[0], T_ROW[1], "gas", "cp [J/(kg K)]"]):
        (cell(c, top).setValue if isinstance(heading, float) else cell(c, top).setString)(heading)
    for i, (p, t, gas) in enumerate(zip(P, T, GASES)):
        cell(0, top + 1 + i).setValue(p)
        cell(1, top + 1 + i).setValue(t)
        cell(5, top + 1 + i).setString(gas)
    for where, text in zip(arrays[0::2], arrays[1::2]):
        sheet.getCellRangeByName(where).setArrayFormula(text)
    for c, width in enumerate([7600, 3000, 3000, 3000, 3000, 3600, 2600]):
        sheet.getColumns().getByIndex(c).Width = width
    page = doc.StyleFamilies.getByName("PageStyles").getByName(sheet.PageStyle)
    page.HeaderIsOn = page.FooterIsOn = False
    page.ScaleToPagesX = page.ScaleToPagesY = 1   # the printed page, for the screenshot
    return top


def expected(lib, top):
    """CSV cell (row, column) -> the library's value, None for an error."""
    want = {(i, 1): lib(name, *args) for i, (name, *args) in enumerate(CASES + FAILING)}
    assert all(want[(i, 1)] is not None for i in range(len(CASES))), "a case fails in the library"
    assert all(want[(len(CASES) + i, 1)] is None for i in range(len(FAILING))), "a failing case does not fail"
    for i, (p, t, gas) in enumerate(zip(P, T, GASES)):
        row = top + 1 + i
        want[(row, 2)] = lib("HPT", p, t)
        for j, t_row in enumerate(T_ROW):
            want[(row, 3 + j)] = lib("HPT", p, t_row)
        want[(row, 6)] = lib("gCPGST", gas, t)
    return want


def check_values(rows, want):
    failures = []
    for (r, c), value in want.items():
        got = rows[r][c] if r < len(rows) and c < len(rows[r]) else ""
        if value is None:
            ok = got.startswith("#") or got.startswith("Err:")
        else:
            try:
                ok = math.isclose(float(got), value, rel_tol=1e-12, abs_tol=0.0)
            except ValueError:
                ok = False
        if not ok:
            failures.append(f"row {r + 1} column {c + 1}: Calc shows {got!r}, the library gives {value!r}")
    return failures


def check_wizard(office, words):
    """Every evaluable row is one function in Calc's function list, with the
    catalogue's arguments and the generated descriptions, and no other KVT_."""
    listed = {}
    descriptions = office.create("com.sun.star.sheet.FunctionDescriptions")
    for i in range(descriptions.getCount()):
        d = {p.Name: p.Value for p in descriptions.getByIndex(i)}
        if d["Name"].startswith("KVT_"):
            listed[d["Name"]] = (d["Description"], [(a.Name, a.Description) for a in d["Arguments"] or ()])
    want = {make_oxt.display_name(r): (make_oxt.describe_function(r),
                                       [(a.name, make_oxt.describe_argument(a, words)) for a in r.inputs])
            for r in make_oxt.functions()}
    failures = [f"{n}: listed as {listed.get(n)}, catalogue says {w}"
                for n, w in want.items() if listed.get(n) != w]
    failures += [f"{n}: listed but not in the catalogue" for n in listed.keys() - want.keys()]
    return failures


def render(pdf, png):
    """The printed page as a PNG, cut to what is on it (pdftoppm of
    poppler-utils, and Pillow)."""
    from PIL import Image, ImageChops
    subprocess.run(["pdftoppm", "-png", "-r", "150", "-singlefile", pdf, os.path.splitext(png)[0]], check=True)
    page = Image.open(png).convert("RGB")
    box = ImageChops.difference(page, Image.new("RGB", page.size, "white")).getbbox()
    page.crop((box[0] - 20, box[1] - 20, box[2] + 20, box[3] + 20)).save(png)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("oxt")
    parser.add_argument("--png", help="render the sheet to this PNG")
    args = parser.parse_args()
    started = time.monotonic()
    work = tempfile.mkdtemp(prefix="kvt-calc-")
    try:
        with zipfile.ZipFile(args.oxt) as oxt:
            oxt.extractall(work, [n for n in oxt.namelist() if n.startswith("pythonpath/kvtcore/")])
        package = os.path.join(work, "pythonpath", "kvtcore")
        lib = Library(os.path.join(package, "libkvtcore.so"))
        with Office(work, args.oxt) as office:
            ods, out = os.path.join(work, "sheet.ods"), os.path.join(work, "values.csv")
            doc = office.new_sheet()
            top = write_sheet(doc)
            doc.storeToURL(uno.systemPathToFileUrl(ods), ())
            doc.close(True)
            doc = office.load(ods)     # as a user opens a saved sheet
            doc.calculateAll()
            # Values as stored, not as shown: every digit Calc holds.
            doc.storeToURL(uno.systemPathToFileUrl(out), (
                prop("FilterName", "Text - txt - csv (StarCalc)"),
                prop("FilterOptions", "44,34,76,1,,0,false,true,false,false,false")))
            if args.png:
                doc.storeToURL(uno.systemPathToFileUrl(os.path.join(work, "sheet.pdf")),
                               (prop("FilterName", "calc_pdf_Export"),))
            doc.close(True)
            wizard = check_wizard(office, make_oxt.argument_words(package))
        removed = office.remove()
        with open(out, newline="", encoding="utf-8") as f:
            rows = list(csv.reader(f))
        if args.png:
            render(os.path.join(work, "sheet.pdf"), args.png)
        want = expected(lib, top)
        cells = check_values(rows, want)
        for line in cells + wizard + ([] if removed else ["unopkg remove left the extension installed"]):
            print("FAIL", line)
        print(f"{len(want)} cells, the wizard's {len(make_oxt.functions())} functions and the removal "
              f"checked in {time.monotonic() - started:.1f} s")
        failed = len(cells) + bool(wizard) + (not removed)
        print(f"{len(want) + 2 - failed} passed, {failed} failed")
        return 1 if failed else 0
    finally:
        shutil.rmtree(work, ignore_errors=True)


if __name__ == "__main__":
    sys.exit(main())
