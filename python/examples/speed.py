"""Measures the package against the library it wraps:

  arrays   kvtcore.HPT over 10^6 points against one kvtEval call of the C
           array interface on the same points and threads (points per second)
  scalars  kvtcore.HPT(p, T) against the bare export kvtHPT called by ctypes

    python3 speed.py [points]
"""
import ctypes
import sys
import time

import numpy as np

import kvtcore
from kvtcore import _lib


def best(f, g, repeat=9, clock=time.perf_counter):
    """The best times of f and g, run in turn so that both see the same load."""
    times = []
    for _ in range(repeat):
        pair = []
        for h in (f, g):
            start = clock()
            h()
            pair.append(clock() - start)
        times.append(pair)
    return min(t[0] for t in times), min(t[1] for t in times)


def main(n=10**6):
    rng = np.random.default_rng(0)
    p, T = rng.uniform(1e5, 50e6, n), rng.uniform(300, 1000, n)
    out, codes = np.empty(n), np.empty(n, np.int32)
    kvt_eval = _lib.lib.kvtEval
    kvt_eval.restype = ctypes.c_int64
    kvt_eval.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_size_t, ctypes.c_void_p,
                         ctypes.c_void_p, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_int32]
    engine = _lib.engine_new()
    args = (ctypes.c_void_p * 2)(p.ctypes.data, T.ctypes.data)
    for workers in (1, 0):
        c, py = best(lambda: kvt_eval(engine, b"HPT", n, args, None, out.ctypes.data, codes.ctypes.data, workers),
                     lambda: kvtcore.HPT(p, T, workers=workers))
        print(f"arrays, {'every core' if workers == 0 else '1 thread'}: C {n / c / 1e6:.2f} M points/s, "
              f"kvtcore {n / py / 1e6:.2f} M points/s ({100 * c / py:.0f} %)")
        if workers == 1:   # CPU time: what the package costs, whatever else runs
            c, py = best(lambda: kvt_eval(engine, b"HPT", n, args, None, out.ctypes.data,
                                          codes.ctypes.data, 1),
                         lambda: kvtcore.HPT(p, T, workers=1), clock=time.process_time)
            print(f"arrays, 1 thread, CPU time: C {n / c / 1e6:.2f} M points/s, "
                  f"kvtcore {n / py / 1e6:.2f} M points/s ({100 * c / py:.0f} %)")
    _lib.engine_free(engine)

    export = _lib.lib.kvtHPT
    export.restype, export.argtypes = ctypes.c_double, [ctypes.c_double, ctypes.c_double]
    m = 200000
    bare, ours = best(lambda: [export(3e6, 300.0) for _ in range(m)],
                      lambda: [kvtcore.HPT(3e6, 300.0) for _ in range(m)])
    bare, ours = bare / m, ours / m
    print(f"scalars: export by ctypes {bare * 1e6:.2f} us, kvtcore.HPT {ours * 1e6:.2f} us a call")


if __name__ == "__main__":
    main(int(float(sys.argv[1])) if len(sys.argv) > 1 else 10**6)
