"""The shared library and the prototypes of the calls the package makes."""
import ctypes
import os
from ctypes import POINTER, c_char_p, c_double, c_int32, c_int64, c_size_t, c_void_p

LIBRARY = "libkvtcore.so"


def _path():
    """KVTCORE_LIBRARY if set, else the copy inside the package, else a build
    of the checkout (for work on the package itself)."""
    given = os.environ.get("KVTCORE_LIBRARY")
    if given:
        return given
    here = os.path.dirname(os.path.abspath(__file__))
    for candidate in (os.path.join(here, LIBRARY),
                      os.path.join(here, "..", "..", "build", "python-lib", LIBRARY)):
        if os.path.exists(candidate):
            return candidate
    raise ImportError(f"kvtcore: {LIBRARY} is missing; install the package with "
                      "python3 -m pip install --no-build-isolation ./python")


lib = ctypes.CDLL(_path())   # CDLL: every call runs with the GIL released


class FunctionInfo(ctypes.Structure):
    _fields_ = [("ordinal", c_int32), ("name", c_char_p), ("shape", c_char_p),
                ("rule", c_char_p), ("result", c_char_p), ("gas", c_int32),
                ("evaluable", c_int32), ("inputs", c_int32), ("outputs", c_int32),
                ("inputNames", POINTER(c_char_p)), ("inputUnits", POINTER(c_char_p)),
                ("outputNames", POINTER(c_char_p)), ("outputUnits", POINTER(c_char_p))]


def _proto(name, restype, *argtypes):
    f = getattr(lib, name)
    f.restype, f.argtypes = restype, list(argtypes)
    return f


engine_new = _proto("kvtEngineNew", c_void_p)
engine_free = _proto("kvtEngineFree", None, c_void_p)
engine_set = _proto("kvtEngineSet", c_int32, c_void_p, c_char_p, c_double)
engine_get = _proto("kvtEngineGet", c_double, c_void_p, c_char_p)
engine_last_error = _proto("kvtEngineLastError", c_int32, c_void_p)
# engine, row, numbers, texts, result, outputs, text
engine_call = _proto("kvtEngineCall", c_int32, c_void_p, c_void_p, c_void_p, c_void_p,
                     c_void_p, c_void_p, c_void_p)
function_count = _proto("kvtFunctionCount", c_int32)
function_at = _proto("kvtFunctionAt", POINTER(FunctionInfo), c_int32)
function_find = _proto("kvtFunctionFind", c_void_p, c_char_p)
error_message = _proto("kvtErrorMessage", c_char_p, c_int32)
# engine, row, gas text, n, args, strides, outs, codes, threads
eval_row = _proto("kvtEvalRow", c_int64, c_void_p, c_void_p, c_char_p, c_size_t,
                  c_void_p, c_void_p, c_void_p, c_void_p, c_int32)
# The same entry without argtypes, for the scalar path: it is handed ctypes
# objects that need no conversion, which is the cheapest call ctypes has.
eval_row_raw = lib["kvtEvalRow"]
eval_row_raw.restype = c_int64
range_text = getattr(lib, "kvtRangeText", None)
if range_text is not None:
    range_text.restype, range_text.argtypes = c_char_p, [c_char_p]
