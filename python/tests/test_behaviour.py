"""How the package behaves: errors, broadcasting, settings per thread, the
catalogue as functions, Dask and charts."""
import concurrent.futures
import inspect
import math
import os
import pickle
import sys
import threading

import numpy as np
import pytest

import kvtcore

CHECKOUT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")

# (call, failing arguments, good arguments, expected error code)
FAILURES = [("HPT", (3e6, 100.0), (3e6, 300.0), 2), ("HPT", (-1.0, 300.0), (1e5, 300.0), 2),
            ("TPH", (3e6, -1e9), (3e6, 500e3), 2), ("HPT", (math.nan, 300.0), (1e5, 300.0), 1),
            ("gCPGST", ("N2:abc", 500.0), ("N2", 500.0), 11),
            ("gCPIDT", (999, 500.0), (0, 500.0), 1), ("XPH", (1e5, 100e3), (1e5, 1e6), 2)]


@pytest.mark.parametrize("name, args, good, code", FAILURES)
def test_error_mapping(name, args, good, code):
    f = getattr(kvtcore, name)
    with pytest.raises(kvtcore.KvtError) as raised:
        f(*args)
    e = raised.value
    assert isinstance(e, ValueError) and e.code == code and e.index is None
    assert e.message == kvtcore.error_message(code) and e.text.startswith(f"{code}.")
    assert e.text in str(e) and e.message in str(e) and kvtcore.GETLASTERROR() == code
    assert math.isnan(f(*args, errors="nan"))
    value, got = f(*args, errors="codes")
    assert math.isnan(value) and got == code
    # the same point inside an array: its index, NaN or its code there
    array = [b if isinstance(b, str) or b == g else np.array([g, b, g]) for b, g in zip(args, good)]
    if not any(isinstance(a, np.ndarray) for a in array):
        return                                       # a text is one for every point
    with pytest.raises(kvtcore.KvtError) as raised:
        f(*array)
    assert raised.value.index == (1,) and raised.value.code == code
    assert pickle.loads(pickle.dumps(raised.value)).index == (1,)    # as Dask sends it
    values, codes = f(*array, errors="codes")
    assert list(codes) == [0, code, 0] and np.isnan(values[1]) and np.isfinite(values[[0, 2]]).all()


def test_non_finite_outputs_fail_and_bad_calls_are_refused():
    values, codes = kvtcore.VUSHCVWDERPTPT([3e6, 3e6], [300, 100], errors="codes")
    assert list(codes) == [0, 2] and all(np.isnan(v[1]) and np.isfinite(v[0]) for v in values)
    for call in (lambda: kvtcore.HPT(1e5, 300, errors="ignore"), lambda: kvtcore.gCPGST(["N2"], 500),
                 lambda: kvtcore.HPT([1, [2]], 300), lambda: kvtcore.HPT(np.ones(2), np.ones(3)),
                 lambda: kvtcore.gCPGST("N2\0O2", 500), lambda: kvtcore.HPT(np.ones(2), 300, workers=-1)):
        with pytest.raises((ValueError, TypeError)):
            call()


SHAPES = [((), (), ()), ((3,), (), (3,)), ((), (2, 3), (2, 3)), ((4, 1), (1, 5), (4, 5)),
          ((2, 1, 3), (4, 1), (2, 4, 3)), ((0,), (), (0,))]


@pytest.mark.parametrize("pshape, Tshape, shape", SHAPES)
def test_broadcasting(pshape, Tshape, shape):
    rng = np.random.default_rng(1)
    p, T = rng.uniform(1e5, 50e6, pshape), rng.uniform(300, 1000, Tshape)
    h = kvtcore.HPT(p, T)
    if shape == ():
        assert type(h) is float
        return
    assert h.shape == shape and h.dtype == np.float64
    P, TT = np.broadcast_arrays(p, T)
    expected = [kvtcore.HPT(float(a), float(b)) for a, b in zip(P.ravel(), TT.ravel())]
    np.testing.assert_array_equal(h.ravel(), expected)
    np.testing.assert_array_equal(kvtcore.HPT(P.T, TT.T), h.T)          # strided views
    np.testing.assert_array_equal(kvtcore.HPT(P.tolist(), TT.tolist()), h)
    pair = kvtcore.PTHS(np.full(shape, 2800e3), 6.5e3)
    assert pair.p.shape == pair.T.shape == shape


def test_settings_apply_in_the_block_and_come_back_after_an_exception():
    defaults = kvtcore.get_settings()
    assert defaults == dict(tolerance=2e-12, tolerance_mode=1, check_range=True, max_iteration=100)
    wanted = dict(tolerance=1e-9, tolerance_mode=0, check_range=False, max_iteration=50)
    with pytest.raises(kvtcore.KvtError):
        with kvtcore.settings(**wanted):
            assert kvtcore.get_settings() == wanted
            assert kvtcore.GETTOLERANCEMODE() == 0 and kvtcore.GETMAXITERATION() == 50
            assert kvtcore.HPT(3e6, 100.0) != -1       # no range check: a number
            kvtcore.gCPGST("(", 300.0)
    assert kvtcore.get_settings() == defaults
    with kvtcore.settings(max_iteration=0):
        assert kvtcore.TPH(3e6, 500e3, errors="codes")[1] == 3
    assert kvtcore.SETLASTERROR(11) == 11 and kvtcore.GETLASTERROR() == 11
    assert kvtcore.SETLASTERROR(12) == 0 and kvtcore.GETLASTERRORDESCRIPTION().startswith("0.")
    with pytest.raises(TypeError):
        kvtcore.settings(speed=1)


def test_threads_keep_their_own_settings():
    rng = np.random.default_rng(2)
    p, h = rng.uniform(1e5, 50e6, 20000), rng.uniform(100e3, 3500e3, 20000)
    cases = [dict(tolerance_mode=k % 2, tolerance=10.0 ** -(6 + k), max_iteration=3 + 5 * k,
                  check_range=k < 4) for k in range(8)]
    serial = []
    for c in cases:
        with kvtcore.settings(**c):
            serial.append(kvtcore.TPH(p, h, errors="codes", workers=1))
    got = [None] * 8
    start = threading.Barrier(8)

    def work(k):
        kvtcore.set_settings(**cases[k])
        start.wait()
        got[k] = [kvtcore.TPH(p, h, errors="codes", workers=1 + k % 2) for _ in range(3)]
        got[k].append(kvtcore.get_settings() == cases[k])

    threads = [threading.Thread(target=work, args=(k,)) for k in range(8)]
    for t in threads:
        t.start()
    for t in threads:
        t.join()
    assert len({serial[k][0].tobytes() for k in range(8)}) > 2      # the settings matter
    for k in range(8):
        assert got[k][-1]
        for values, codes in got[k][:-1]:
            np.testing.assert_array_equal(values, serial[k][0])
            np.testing.assert_array_equal(codes, serial[k][1])


def in_new_thread(work):
    """work() on a thread of its own (a fresh engine); its exception re-raised."""
    with concurrent.futures.ThreadPoolExecutor(1) as pool:
        return pool.submit(work).result()


def test_gases_and_errors_stay_in_their_thread():
    def owner():        # gDELETEGASES below must not reach the other tests' engine
        n2, o2 = kvtcore.gIDNAME("N2"), kvtcore.gIDNAME("O2")
        gas = kvtcore.gNEWID()
        assert kvtcore.gADDGASV(gas, n2, 79.0) == 1 and kvtcore.gADDGASV(gas, o2, 21.0) == 2
        by_text = kvtcore.gNEWIDGS("N2:0.5;O2:0.5")
        cp = kvtcore.gCPIDT(gas, 500.0)
        assert cp == kvtcore.gCPGST("N2:79;O2:21", 500.0) and "O2" in kvtcore.gGSID(gas)
        count = kvtcore.gGASESCOUNT()

        def other():
            return (kvtcore.gCPIDT(gas, 500.0, errors="codes")[1], kvtcore.gGSID(gas, errors="codes"),
                    kvtcore.gCPIDT(by_text, 500.0, errors="codes")[1], kvtcore.gGASESCOUNT(),
                    kvtcore.SETTOLERANCEMODE(0), kvtcore.GETLASTERROR())

        cp_code, gs, text_code, other_count, mode, last = in_new_thread(other)
        assert cp_code != 0 and gs[0] is None and gs[1] != 0 and text_code != 0
        assert other_count == count - 2 and mode == 0 and last == 0
        assert kvtcore.gCPIDT(gas, 500.0) == cp and kvtcore.GETTOLERANCEMODE() == 1
        assert kvtcore.gDELETEGASES() < count
        with pytest.raises(kvtcore.KvtError):
            kvtcore.gGSID(gas)
        value, code = kvtcore.SETTOLERANCEMODE(0.5, errors="codes")   # no integer: not stored
        assert math.isnan(value) and code == 1 and kvtcore.GETTOLERANCEMODE() == 1
        assert kvtcore.GETLASTERRORDESCRIPTIONW() == kvtcore.GETLASTERRORDESCRIPTION()

    in_new_thread(owner)


def test_catalogue_rows_are_the_functions():
    sys.path.insert(0, os.path.join(CHECKOUT, "tools"))
    catalogue = pytest.importorskip("catalogue")
    rows = catalogue.read()
    assert sorted(kvtcore.functions()) == sorted(r.short for r in rows)
    ctypes_of = {"double": "c_double", "int32_t": "c_int", "const char*": "c_char_p"}
    for r in rows:
        f, info = getattr(kvtcore, r.short), kvtcore.function_info(r.name)
        params = [p for p in inspect.signature(f).parameters if p not in ("errors", "workers")]
        assert params == [kvtcore._functions._identifier(a.name) for a in r.inputs] and info.ordinal == r.ordinal
        assert info.evaluable == r.evaluable and info.result == r.result
        assert (r.result if len(info.outputs) == 1 else f"[{r.outputs[-1].unit}]") in f.__doc__ and all(f"[{a.unit}]" in f.__doc__ for a in r.inputs if a.unit)
        assert info.kind == ("array" if r.evaluable or len(r.outputs) > 1 else "call")
        if info.kind == "call":                      # texts and numbers as the export takes them
            restype, argtypes = kvtcore._functions.SHAPES[r.shape]
            assert [t.__name__ for t in argtypes] == [ctypes_of[a.ctype] for a in r.args]
    assert kvtcore.function_info("kvthpt").name == "HPT"
    assert kvtcore.gCPGST("N2:0.79;O2:0.21", 500.0) == pytest.approx(
        kvtcore.gCPGST("N2:79;O2:21", 500.0), rel=1e-12)
    gas = kvtcore.gNEWIDGS("N2:0.5;O2:0.5")
    assert kvtcore.gCPIDT(gas, 500.0) == kvtcore.gCPGST("N2:0.5;O2:0.5", 500.0)
    assert kvtcore.gGSGS("N2") and kvtcore.GETKVTVERSION() == 6.0001


def test_dask_cluster_gives_the_local_field():
    da = pytest.importorskip("dask.array")
    distributed = pytest.importorskip("dask.distributed")
    with distributed.LocalCluster(n_workers=2, threads_per_worker=1, processes=True,
                                  dashboard_address=None) as cluster, distributed.Client(cluster):
        p = da.linspace(1e5, 50e6, 1000, chunks=250)[:, None]
        T = da.linspace(300.0, 1000.0, 10000, chunks=2500)[None, :]
        field = da.map_blocks(kvtcore.HPT, p, T, dtype=float).compute()
    assert field.shape == (1000, 10000)
    np.testing.assert_array_equal(field, kvtcore.HPT(p.compute(), T.compute()))


@pytest.mark.parametrize("chart", ["ts", "hs", "ph"])
def test_charts_draw_without_a_display(chart, tmp_path):
    matplotlib = pytest.importorskip("matplotlib")
    matplotlib.use("Agg")
    import kvtcore.charts
    fig = getattr(kvtcore.charts, chart)()
    ax = fig.axes[0]
    assert len(ax.lines) > 15 and "[" in ax.get_xlabel() and "[" in ax.get_ylabel()
    finite = sum(np.isfinite(line.get_xydata()).all(axis=1).sum() for line in ax.lines)
    assert finite > 3000
    fig.savefig(tmp_path / "chart.png")
    assert (tmp_path / "chart.png").stat().st_size > 10000
