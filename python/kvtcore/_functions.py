"""Every catalogue row of the library as a Python function.

The rows come from the library itself (kvtFunctionInfo): names, arguments,
units, results and outputs. Nothing about a function is written here; this
module only knows how each kind of row is called:

  array    numbers in, one, two or fourteen numbers out: evaluated by
           kvtEvalRow on the calling thread's engine, over arrays on many
           threads with the GIL released
  call     the rest (settings, last error, gas registry, texts, help,
           reserved functions): one call of kvtEngineCall on the calling
           thread's engine, which runs the row as its export would
"""
import collections
import ctypes
import keyword
import math
import sys
import types
from ctypes import c_char_p, c_double, c_int32, c_size_t, c_void_p

import numpy as np

from . import _engine, _lib
from ._engine import KvtError, engine

ERRORS = ("raise", "nan", "codes")
BIG = 20000          # from this many points on, arrays use every core by default

results = types.ModuleType("kvtcore.results", "Named tuples of the pair and 14-output functions.")
sys.modules["kvtcore.results"] = results

# The C signature of each call shape of kvtcore.h (result, arguments): which
# arguments are texts and integers, and what the result is.
_d, _i, _s = c_double, c_int32, c_char_p
SHAPES = {"D0": (_d, ()), "D1": (_d, (_d,)), "D2": (_d, (_d,) * 2), "D3": (_d, (_d,) * 3),
          "D4": (_d, (_d,) * 4), "D5": (_d, (_d,) * 5), "D12": (_d, (_d,) * 12),
          "I0": (_i, ()), "I1": (_i, (_i,)), "I2": (_i, (_d, _d)), "H1": (_d, (_i,)),
          "GI0": (_d, (_i,)), "GI1": (_d, (_i, _d)), "GI2": (_d, (_i, _d, _d)),
          "GS0": (_d, (_s,)), "GS1": (_d, (_s, _d)), "GS2": (_d, (_s, _d, _d)),
          "FII": (_d, (_i, _i)), "FSS": (_d, (_s, _s)), "AII": (_i, (_i, _i, _d)),
          "IS1": (_i, (_s,)), "C0": (_s, ()), "CI1": (_s, (_i,)), "CS1": (_s, (_s,)),
          "W0": (ctypes.c_void_p, ())}

WORDS = {"p": "pressure", "T": "temperature", "h": "specific enthalpy", "s": "specific entropy",
         "v": "specific volume", "u": "specific internal energy", "rho": "density",
         "x": "dryness fraction", "p1": "inlet pressure", "T1": "inlet temperature",
         "x1": "inlet dryness fraction", "p2": "outlet pressure", "efficiency": "isentropic efficiency",
         "cp": "isobaric heat capacity", "cv": "isochoric heat capacity", "w": "speed of sound",
         "eta": "dynamic viscosity", "nu": "kinematic viscosity", "lambda": "thermal conductivity",
         "Pr": "Prandtl number", "k": "isentropic exponent", "muJT": "Joule-Thomson coefficient",
         "rhoStart": "density to start the solve from", "id": "gas id", "gs": "gas-spec text"}

FOOTER = """
Numbers, lists and numpy arrays of any shape are taken and broadcast like a
numpy ufunc; an array is evaluated by one library call on `workers` threads
(None: every core from {big} points on, else one; 0: every core).
errors="raise" raises KvtError at a failed point, "nan" gives NaN there,
"codes" returns (result, error codes).""".format(big=BIG)

CALL_FOOTER = """
Runs once on the calling thread's engine (kvtEngineCall), as the export runs
on the global one; settings, last error and gases are the thread's own.
errors="raise" raises KvtError on failure, "nan" gives NaN there (None for a
text), "codes" returns (result, error code)."""


class Info:
    """One catalogue row, as the library describes it."""

    def __init__(self, row):
        c = row.contents
        self.ptr = ctypes.cast(row, c_void_p).value
        self.export = c.name.decode()
        self.name = self.export[3:]
        self.ordinal, self.shape, self.rule = c.ordinal, c.shape.decode(), c.rule.decode()
        self.result = c.result.decode()
        self.gas, self.evaluable = c.gas, bool(c.evaluable)
        self.inputs = tuple((c.inputNames[i].decode(), c.inputUnits[i].decode())
                            for i in range(c.inputs))
        self.outputs = tuple((c.outputNames[i].decode(), c.outputUnits[i].decode())
                             for i in range(c.outputs))
        self.integer = SHAPES.get(self.shape, (None,))[0] is c_int32
        self.kind = "array" if self.evaluable or len(self.outputs) > 1 else "call"
        text = _lib.range_text(self.rule.encode()) if _lib.range_text else None
        self.range = text.decode() if text else ""
        self.tuple = None

    def __repr__(self):
        args = ", ".join(f"{n} [{u}]" if u else n for n, u in self.inputs)
        return f"<kvtcore function {self.name}({args}) -> {self.result}>"


# ---- Arrays and scalars through kvtEvalRow ----

_SCALAR = {float, int, np.float64, np.float32, np.int64, np.int32}


def _gas_text(value, name):
    if isinstance(value, str):
        value = value.encode("utf-8")
    if isinstance(value, bytes):
        if b"\0" in value:
            raise ValueError(f"{name}: a gas-spec text holds no NUL character")
        return value
    raise TypeError(f"{name}: the gas is one gas-spec text (str), not {type(value).__name__}")


def evaluate(fn, args, errors, workers):
    if errors not in ERRORS:
        raise ValueError(f"{fn.name}: errors is one of {', '.join(ERRORS)}, not {errors!r}")
    gas = None
    if fn.shape == "FSS":                        # two texts, given as "mixture|component"
        gas, args = _gas_text(args[0], fn.name) + b"|" + _gas_text(args[1], fn.name), args[2:]
    elif fn.gas == 2:
        gas, args = _gas_text(args[0], fn.name), args[1:]
    for a in args:
        if type(a) not in _SCALAR:
            return _array(fn, gas, args, errors, workers)
    return _scalar(fn, gas, args, errors)


def _scalar(fn, gas, args, errors):
    e = engine()
    inputs = e.inputs
    for i, a in enumerate(args):
        inputs[i] = a
    if _lib.eval_row(e.ptr, fn.ptr, gas, 1, e.args, None, e.outs, e.code_ptr, 1) < 0:
        raise RuntimeError(f"kvtcore: the library refused {fn.name}")
    code = e.code.value
    m = len(fn.outputs)
    values = e.outputs[:m]
    if code == 0 and not all(map(math.isfinite, values)):
        code, values = 1, [math.nan] * m      # no number that is not finite leaves
    e.last = code
    if code and errors == "raise":
        raise KvtError(code, fn.name)
    if m > 1:
        result = fn.tuple(*values)
    elif fn.integer and code == 0:
        result = int(values[0])
    else:
        result = values[0]
    return (result, code) if errors == "codes" else result


def _array(fn, gas, args, errors, workers):
    arrays = [np.asarray(a, dtype=np.float64) for a in args]
    shape = np.broadcast_shapes(*(a.shape for a in arrays))
    n = math.prod(shape)
    m = len(fn.outputs)
    outs = [np.empty(shape) for _ in range(m)]
    codes = np.zeros(shape, np.int32) if n == 0 else np.empty(shape, np.int32)
    if n:
        pointers, strides = [], []
        for i, a in enumerate(arrays):
            if a.size == 1:                      # one value for every point
                strides.append(0)
            else:
                if a.shape != shape or not a.flags.c_contiguous:
                    a = arrays[i] = np.ascontiguousarray(np.broadcast_to(a, shape))
                strides.append(1)
            pointers.append(a.ctypes.data)
        k = max(len(arrays), 1)
        threads = int(workers) if workers is not None else (0 if n >= BIG else 1)
        if threads < 0:
            raise ValueError(f"{fn.name}: workers is 0 (every core) or more, not {workers}")
        e = engine()
        failed = _lib.eval_row(e.ptr, fn.ptr, gas, n, (c_void_p * k)(*pointers),
                               (c_size_t * k)(*strides), (c_void_p * m)(*(o.ctypes.data for o in outs)),
                               codes.ctypes.data, threads)
        if failed < 0:
            raise RuntimeError(f"kvtcore: the library refused {fn.name}")
        finite = np.isfinite(outs[0])
        for o in outs[1:]:
            finite &= np.isfinite(o)
        if not finite.all():                     # no number that is not finite leaves
            bad = ~finite
            codes[bad & (codes == 0)] = 1
            for o in outs:
                o[bad] = np.nan
            failed = 1
        e.last = 0
        if failed:
            first = int(np.argmax(codes != 0))
            e.last = int(codes.flat[first])
            if errors == "raise":
                raise KvtError(e.last, fn.name, np.unravel_index(first, shape) if shape else None)
    if shape == ():
        outs = [float(o) for o in outs]
        codes = int(codes)
    result = fn.tuple(*outs) if m > 1 else outs[0]
    return (result, codes) if errors == "codes" else result


# ---- Every other row through kvtEngineCall, on the thread's engine ----

_SET_LAST_ERROR = _lib.function_find(b"SETLASTERROR")


def _utf16(address):
    """The null-terminated UTF-16 text at an address."""
    n = 0
    while ctypes.c_uint16.from_address(address + 2 * n).value:
        n += 1
    return ctypes.string_at(address, 2 * n).decode("utf-16-le", "replace")


def call(fn, args, errors="raise"):
    """Row fn once, with the Python arguments args, as its export runs it."""
    if errors not in ERRORS:
        raise ValueError(f"{fn.name}: errors is one of {', '.join(ERRORS)}, not {errors!r}")
    restype, argtypes = SHAPES[fn.shape]
    numbers, texts = [], []
    for a, kind in zip(args, argtypes):
        if kind is c_char_p:
            texts.append(_gas_text(a, fn.name))
        else:
            numbers.append(float(a))            # an integer that is no int32 fails with code 1
    e = engine()
    plain = fn.rule == "Plain"                  # the last-error rows read it without clearing
    if plain and _lib.engine_last_error(e.ptr) != e.last:
        number = c_double(e.last)
        _lib.engine_call(e.ptr, _SET_LAST_ERROR, ctypes.byref(number), None, None, None, None)
    code = _lib.engine_call(e.ptr, fn.ptr, (c_double * len(numbers))(*numbers) if numbers else None,
                            (c_char_p * len(texts))(*texts) if texts else None,
                            ctypes.byref(e.result), None, ctypes.byref(e.text))
    e.last = code
    if plain:
        code = 0                                # the code read is no failure of the call
    if restype is c_char_p or restype is c_void_p:
        address = e.text.value
        value = (None if not address else ctypes.string_at(address).decode("utf-8", "replace")
                 if restype is c_char_p else _utf16(address))
    else:
        value = int(e.result.value) if restype is c_int32 else e.result.value
    if code:
        if errors == "raise":
            raise KvtError(code, fn.name)
        value = None if restype in (c_char_p, c_void_p) else math.nan
    return (value, code) if errors == "codes" else value


# ---- Making the functions ----

def _identifier(name):
    name = "".join(ch if ch.isalnum() or ch == "_" else "_" for ch in name)
    return name + "_" if keyword.iskeyword(name) or not name.isidentifier() else name


def docstring(fn):
    returns = (f"{fn.tuple.__name__}({', '.join(n for n, _ in fn.outputs)})"
               if len(fn.outputs) > 1 else fn.result)
    lines = [f"{fn.name}({', '.join(_identifier(n) for n, _ in fn.inputs)}) -> {returns}", ""]
    if fn.inputs:
        lines.append("Arguments:")
        for name, unit in fn.inputs:
            word = WORDS.get(name, "")
            lines.append(f"  {name:10s} {word}{' ' if word and unit else ''}{'[' + unit + ']' if unit else ''}")
    if len(fn.outputs) > 1:
        lines += ["", f"Returns the named tuple {fn.tuple.__name__}:"]
        lines += [f"  {name:10s} [{unit}]" if unit else f"  {name}" for name, unit in fn.outputs]
    if fn.range:
        lines += ["", "Valid range: " + fn.range]
    lines += ["", f"Export {fn.export}, ordinal {fn.ordinal}, range rule {fn.rule}."]
    if fn.kind == "array":
        lines.append(FOOTER)
    else:
        lines.append(CALL_FOOTER)
    return "\n".join(lines)


# The scalar path of a one-number row, inlined into its function: plain
# numbers, errors raised; anything else, or a failed point, takes the general
# road (which evaluates the point again to report it).
_FAST = """\
    if {test} and errors == "raise":
        try:
            e = _local.engine
        except AttributeError:
            e = _engine()
        i = e.inputs
        {store}
        _call(e.handle, _row, None, _one, e.args, None, e.outs, e.code_ptr, _one_thread)
        v = e.outputs[0]
        if v - v == 0.0:           # a failed point is NaN
            e.last = 0
            return v
"""


def make(fn, module):
    """The Python function of one row, placed in `module` under its short name."""
    params = ", ".join(_identifier(n) for n, _ in fn.inputs)
    if len(fn.outputs) > 1:
        fn.tuple = collections.namedtuple(f"{fn.name}Result", [_identifier(n) for n, _ in fn.outputs],
                                          module=results.__name__)
        setattr(results, fn.tuple.__name__, fn.tuple)
    fast = ""
    if fn.kind == "array":
        head = f"{params}, *, errors='raise', workers=None" if params else "*, errors='raise', workers=None"
        body = f"_evaluate(_fn, ({params}{',' if params else ''}), errors, workers)"
        if params and fn.gas != 2 and len(fn.outputs) == 1 and not fn.integer:
            fast = _FAST.format(test=" and ".join(f"type({a}) in _S" for a in params.split(", ")),
                                store="; ".join(f"i[{k}] = {a}" for k, a in enumerate(params.split(", "))))
    else:
        head = f"{params}, *, errors='raise'" if params else "*, errors='raise'"
        body = f"_call_row(_fn, ({params}{',' if params else ''}), errors)"
    space = {"_evaluate": evaluate, "_call_row": call, "_fn": fn, "_S": _SCALAR, "_local": _engine._local,
             "_engine": engine, "_call": _lib.eval_row_raw, "_row": c_void_p(fn.ptr),
             "_one": c_size_t(1), "_one_thread": c_int32(1)}
    exec(f"def {fn.name}({head}):\n{fast}    return {body}\n", space)
    f = space[fn.name]
    f.__module__, f.__qualname__, f.__doc__ = module.__name__, fn.name, docstring(fn)
    f.info = fn
    setattr(module, fn.name, f)
    return f


def catalogue():
    return [Info(_lib.function_at(i)) for i in range(_lib.function_count())]
