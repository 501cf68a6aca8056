"""kvtcore: water and steam (IAPWS-IF97), ideal gases and gas mixtures.

Every function of the library is here under its export's name without the
prefix: kvtcore.HPT(p, T) for kvtHPT, kvtcore.gCPGST(gas, T) for kvtgCPGST.
They take numbers, lists or numpy arrays of any shape, broadcast them like a
numpy ufunc and evaluate arrays on every core with the GIL released:

    >>> import kvtcore
    >>> kvtcore.HPT(3e6, 300)                    # J/kg
    115331.27...
    >>> kvtcore.HPT([1e5, 3e6], [[300], [400]])  # a 2 x 2 array
    >>> kvtcore.VUSHCVWDERPTPT(1e5, 400).cp      # one of fourteen outputs

A failure raises KvtError (a ValueError) unless errors="nan" or "codes" is
given. Settings hold per thread: with kvtcore.settings(tolerance_mode=0): ...
Every Python thread works on an engine of its own. function_info(name) and
functions() give the catalogue rows; kvtcore.charts draws T-s, h-s and p-h
diagrams with matplotlib.
"""
import sys as _sys

from . import _functions, _lib
from ._engine import KvtError, error_message, get_settings, library_text, set_settings, settings
from ._functions import results

__version__ = "6.0.1"

_module = _sys.modules[__name__]
_catalogue = {}
for _fn in _functions.catalogue():
    _functions.make(_fn, _module)
    _catalogue[_fn.name] = _fn


def function_info(name):
    """The catalogue row of a function, by its name with or without the kvt
    prefix, in any case: .name, .export, .ordinal, .shape, .rule, .result,
    .inputs and .outputs as (name, unit) pairs, .gas (0 water, 1 id, 2 text),
    .evaluable, .kind ("array": evaluated over arrays; "call": once, by
    kvtEngineCall, on the calling thread's engine), .range."""
    key = name[3:] if name.lower().startswith("kvt") else name
    for fn in _catalogue.values():
        if fn.name.lower() == key.lower():
            return fn
    raise KeyError(f"kvtcore: no function {name!r}")


def functions(kind=None):
    """The names of every function, or of those of one kind."""
    return [n for n, fn in _catalogue.items() if kind is None or fn.kind == kind]


__all__ = ["KvtError", "settings", "get_settings", "set_settings", "function_info",
           "functions", "error_message", "library_text", "results"] + functions()
del _fn
