"""The Calc add-in of kvtcore: each method of org.kvtcore.calc.XKvtCore calls
the kvtcore function of the same name with Calc's arguments and gives Calc
the result.

An argument is a cell's value or a range (rows of cells); ranges broadcast
as numpy arrays do, so a column of p and a column of T give a column of
results, a column of p and a row of T a table. A point that fails is NaN,
which Calc shows as the error #NUM!; so does a text or an empty cell where a
number belongs.
"""
import os
import sys

import unohelper
from com.sun.star.lang import XServiceInfo
from org.kvtcore.calc import XKvtCore

# The extension's own kvtcore before any other installed for this Python.
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "pythonpath"))
import numpy  # noqa: E402
import kvtcore  # noqa: E402
from kvtcore_calc_functions import FUNCTIONS  # noqa: E402

SERVICE = "org.kvtcore.calc.KvtCore"
NAN = float("nan")


def _number(value):
    return float(value) if isinstance(value, (int, float)) and not isinstance(value, bool) else NAN


def _gas_id(value):
    """An id cell holds a whole number; anything else is no gas (-1)."""
    number = _number(value)
    return int(number) if number.is_integer() and abs(number) < 2**31 else -1


def _text(value):
    return value if isinstance(value, str) else ""


_CONVERT = {"d": _number, "i": _gas_id, "s": _text}


def _argument(value, kind):
    """A cell's value as it is, a range (rows of cells) as a 2-D array."""
    convert = _CONVERT[kind]
    if isinstance(value, tuple):
        return numpy.array([[convert(cell) for cell in row] for row in value],
                           dtype=object if kind == "s" else float)
    return convert(value)


def evaluate(function, kinds, values):
    """function over Calc's values, as rows of numbers: one row of one number
    when every argument is a cell, which Calc shows as a plain number."""
    args = [_argument(v, k) for v, k in zip(values, kinds)]
    if any(isinstance(a, numpy.ndarray) and a.dtype == object for a in args):
        # A range of gas texts: kvtcore takes one text a call.
        grid = numpy.broadcast_arrays(*[numpy.asarray(a, dtype=object) for a in args])
        points = zip(*(g.ravel() for g in grid))
        result = numpy.array([function(*p, errors="nan") for p in points], dtype=float)
        result = result.reshape(grid[0].shape)
    else:
        result = numpy.asarray(function(*args, errors="nan"), dtype=float)
    result = numpy.where(numpy.isfinite(result), result, NAN)
    return tuple(map(tuple, numpy.atleast_2d(result).tolist()))


def _method(name, kinds):
    function = getattr(kvtcore, name)

    def method(self, *values):
        return evaluate(function, kinds, values)
    method.__name__ = name
    return method


class KvtCore(unohelper.Base, XKvtCore, XServiceInfo):
    def __init__(self, ctx):
        self.ctx = ctx

    def getImplementationName(self):
        return SERVICE

    def supportsService(self, name):
        return name == SERVICE

    def getSupportedServiceNames(self):
        return (SERVICE,)


for _name, (_function, _kinds) in FUNCTIONS.items():
    setattr(KvtCore, _name, _method(_function, _kinds))

g_ImplementationHelper = unohelper.ImplementationHelper()
g_ImplementationHelper.addImplementation(KvtCore, SERVICE, (SERVICE,))
