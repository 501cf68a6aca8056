"""One engine per Python thread, its settings, and the errors of the package.

Each thread that calls the package gets an engine of its own the first time
it calls, with the library's default settings and gases; the engine is freed
when the thread ends. So threads never see each other's settings, last error
or gases, and no lock is taken on the way to the library.
"""
import ctypes
import math
import threading
from ctypes import addressof, c_double, c_int32, c_void_p

from . import _lib

_local = threading.local()


class _Engine:
    """A library engine and the scratch buffers of the scalar path."""

    def __init__(self):
        self.ptr = _lib.engine_new()
        if not self.ptr:
            raise MemoryError("kvtcore: no memory for an engine")
        self.handle = ctypes.c_void_p(self.ptr)
        self.last = 0                       # the thread's last error code
        self.inputs = (c_double * 8)()
        self.args = (c_void_p * 8)(*(addressof(self.inputs) + 8 * i for i in range(8)))
        self.outputs = (c_double * 14)()
        self.outs = (c_void_p * 14)(*(addressof(self.outputs) + 8 * i for i in range(14)))
        self.code = c_int32()
        self.code_ptr = ctypes.byref(self.code)
        self.result = c_double()            # kvtEngineCall's result and text
        self.text = ctypes.c_void_p()

    def __del__(self, free=_lib.engine_free):
        free(self.ptr)


def engine():
    """The calling thread's engine."""
    try:
        return _local.engine
    except AttributeError:
        _local.engine = _Engine()
        return _local.engine


# ---- Errors ----

_texts = {}


def library_text(code):
    """The library's own description of an error code, as kvtGETLASTERRORDESCRIPTION
    gives it ("" for a code it has no text for). Read on an engine of its own,
    so that no thread's last error changes."""
    if code not in _texts:
        e = _Engine()
        number = c_double(code)
        _lib.engine_call(e.ptr, _lib.function_find(b"SETLASTERROR"), ctypes.byref(number),
                         None, None, None, None)
        _lib.engine_call(e.ptr, _lib.function_find(b"GETLASTERRORDESCRIPTION"), None, None,
                         None, None, ctypes.byref(e.text))
        text = ctypes.string_at(e.text.value) if e.text.value else b""
        _texts[code] = text.decode("utf-8", "replace")
    return _texts[code]


def error_message(code):
    """The meaning of an error code in English."""
    return _lib.error_message(code).decode()


class KvtError(ValueError):
    """A failed calculation.

    code      the library's error code (1 floating-point failure or non-finite
              result, 2 arguments out of range, 3 iteration limit, 4 unknown
              state area, 8 not implemented, 11 gas-text syntax)
    message   its meaning in English
    text      the library's own text for it
    function  the function's name, HPT
    index     for array input, the index of the first failed point in the
              broadcast shape; None for scalar input
    """

    def __init__(self, code, function="", index=None):
        self.code, self.function = int(code), function
        self.index = tuple(int(i) for i in index) if index is not None else None
        self.message, self.text = error_message(self.code), library_text(self.code)
        where = f" at index {index}" if index is not None else ""
        super().__init__(f"{function}: {self.message}{where} "
                         f"(error {self.code}: {self.text})")

    def __reduce__(self):   # so that Dask brings it back from a worker whole
        return KvtError, (self.code, self.function, self.index)


# ---- Settings ----

_SETTINGS = {"tolerance": (b"tolerance", float),
             "tolerance_mode": (b"toleranceMode", int),
             "check_range": (b"checkRangeMode", bool),
             "max_iteration": (b"maxIteration", int)}


def get_settings():
    """The calling thread's settings: tolerance, tolerance_mode, check_range,
    max_iteration."""
    e = engine()
    return {k: kind(_lib.engine_get(e.ptr, name)) for k, (name, kind) in _SETTINGS.items()}


def set_settings(**values):
    """Sets settings of the calling thread (names as get_settings gives them)."""
    e = engine()
    for key, value in values.items():
        if key not in _SETTINGS:
            raise TypeError(f"kvtcore: unknown setting {key!r}; known: {', '.join(_SETTINGS)}")
        number = float(value)
        if _SETTINGS[key][1] is not float and not number.is_integer():
            raise ValueError(f"kvtcore: {key} takes an integer, not {value!r}")
        _lib.engine_set(e.ptr, _SETTINGS[key][0], number)


class settings:
    """Settings for a block of code on the calling thread:

        with kvtcore.settings(tolerance_mode=0, check_range=False):
            h = kvtcore.HPT(p, T)

    The previous settings come back when the block ends, by an exception too.
    tolerance: relative tolerance of the iterations (default 2e-12);
    tolerance_mode: 0 backward equations only, 1 refined (default 1);
    check_range: test the inputs against the valid range (default True);
    max_iteration: iteration cap (default 100).
    """

    def __init__(self, **values):
        unknown = set(values) - set(_SETTINGS)
        if unknown:
            raise TypeError(f"kvtcore: unknown setting {', '.join(sorted(unknown))}")
        self.values, self.saved = values, []

    def __enter__(self):
        self.saved.append(get_settings())
        set_settings(**self.values)
        return self

    def __exit__(self, *exc):
        set_settings(**self.saved.pop())
        return False

