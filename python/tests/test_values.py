"""Numbers through the package: published check values, IAPWS-IF97 forward
regions against python3-iapws, bit-for-bit agreement with the C exports."""
import ctypes
import math

import numpy as np
import pytest

import kvtcore

# IAPWS-IF97 check values (tables 5, 15, 33, 35, 42 and the backward tables).
PUBLISHED = [
    ("VPT", (3e6, 300), 0.100215168e-2), ("HPT", (3e6, 300), 0.115331273e6),
    ("SPT", (3e6, 500), 0.258041912e4), ("CPPT", (3e6, 500), 0.465580682e4),
    ("WPT", (80e6, 300), 0.163469054e4), ("VPT", (3500, 300), 0.394913866e2),
    ("HPT", (3500, 700), 0.333568375e7), ("WPT", (3500, 700), 0.644289068e3),
    ("PST", (300,), 0.353658941e4), ("PST", (500,), 0.263889776e7),
    ("TSP", (0.1e6,), 0.372755919e3), ("TSP", (10e6,), 0.584149488e3),
]
# Backward equations, as they stand with tolerance_mode 0.
BACKWARD = [
    ("TPH", (3e6, 500e3), 0.391798509e3), ("TPH", (80e6, 1500e3), 0.611041229e3),
    ("TPS", (3e6, 0.5e3), 0.307842258e3), ("TPH", (3e6, 4000e3), 0.101077577e4),
    ("TPH", (5e6, 3500e3), 0.801299102e3), ("TPH", (25e6, 3500e3), 0.875279054e3),
    ("TPS", (0.1e6, 7.5e3), 0.399517097e3),
]


@pytest.mark.parametrize("name, args, value", BACKWARD)
def test_published_backward(name, args, value):
    with kvtcore.settings(tolerance_mode=0):
        assert getattr(kvtcore, name)(*args) == pytest.approx(value, rel=5e-9)
    assert getattr(kvtcore, name)(*args) == pytest.approx(value, rel=1e-4)


@pytest.mark.parametrize("name, args, value", PUBLISHED)
def test_published(name, args, value):
    assert getattr(kvtcore, name)(*args) == pytest.approx(value, rel=5e-9)


iapws97 = pytest.importorskip("iapws.iapws97")
REGION = {1: (iapws97._Region1, np.linspace(20e6, 80e6, 7), np.linspace(280, 600, 7)),
          2: (iapws97._Region2, np.linspace(1e3, 1e6, 7), np.linspace(500, 1070, 7))}
PROPS = [("h", 1e3), ("s", 1e3), ("v", 1), ("cp", 1e3), ("cv", 1e3), ("w", 1)]


@pytest.mark.parametrize("region", [1, 2])
def test_forward_regions_1_2_against_iapws(region):
    equation, p, T = REGION[region]
    P, TT = np.meshgrid(p, T)
    ours = getattr(kvtcore, f"VUSHCVWDERPT{region}PT")(P, TT)
    for (i, j), pij in np.ndenumerate(P):
        theirs = equation(TT[i, j], pij / 1e6)
        for name, scale in PROPS:
            assert getattr(ours, name)[i, j] == pytest.approx(theirs[name] * scale, rel=1e-9), name


def test_forward_region3_against_iapws():
    rho, T = np.meshgrid(np.linspace(200, 700, 6), np.linspace(630, 860, 6))
    ours = kvtcore.VUSHCVWDERPT3RT(rho, T)
    for (i, j), r in np.ndenumerate(rho):
        theirs = iapws97._Region3(r, T[i, j])
        for name, scale in PROPS:
            assert getattr(ours, name)[i, j] == pytest.approx(theirs[name] * scale, rel=1e-9), name


def test_every_point_equals_the_export_bit_for_bit():
    lib = ctypes.CDLL(kvtcore._lib._path())
    rng = np.random.default_rng(7)
    cases = [("HPT", (rng.uniform(1e3, 100e6, 500), rng.uniform(273.16, 2273, 500))),
             ("TPH", (rng.uniform(1e3, 100e6, 500), rng.uniform(0, 4e6, 500))),
             ("gCPIDT", (rng.integers(0, 15, 500).astype(float), rng.uniform(200, 3000, 500)))]
    for name, args in cases:
        export = getattr(lib, "kvt" + name)
        export.restype = ctypes.c_double
        export.argtypes = [ctypes.c_int32 if name.startswith("gCPID") and i == 0 else ctypes.c_double
                           for i in range(len(args))]
        ours, codes = getattr(kvtcore, name)(*args, errors="codes", workers=2)
        for k in range(len(args[0])):
            value = export(*(int(a[k]) if name.startswith("gCPID") and i == 0 else a[k]
                             for i, a in enumerate(args)))
            scalar = getattr(kvtcore, name)(*(a[k] for a in args), errors="nan")
            if codes[k]:
                assert math.isnan(ours[k]) and math.isnan(scalar) and value == -1.0
            else:
                assert ours[k] == value == scalar


def test_many_outputs_agree_with_single_functions():
    p, T = np.array([1e5, 3e6, 30e6]), np.array([400.0, 300.0, 700.0])
    all14 = kvtcore.VUSHCVWDERPTPT(p, T)
    for name, single in [("v", "VPT"), ("h", "HPT"), ("s", "SPT"), ("cp", "CPPT"), ("w", "WPT")]:
        np.testing.assert_allclose(getattr(all14, name), getattr(kvtcore, single)(p, T), rtol=1e-12)
    pair = kvtcore.PTHS(2800e3, 6.5e3)
    assert kvtcore.HPT(pair.p, pair.T) == pytest.approx(2800e3, rel=1e-9)
    assert kvtcore.VUSHCVWDERPTPT(1e5, 400)._fields[-1] == "cp"
