"""Charts of water and steam: T-s, h-s (Mollier) and p-h diagrams.

Each draws the saturation dome, isobars or isotherms, and lines of constant
dryness with matplotlib, every point computed by the library, and returns
the figure:

    fig = kvtcore.charts.hs()
    fig.savefig("mollier.png", dpi=120)

Pressures are given in Pa and temperatures in K, as everywhere in kvtcore;
the axes show kJ/kg, kJ/(kg K), MPa and K.
"""
import numpy as np

import kvtcore

T_TRIPLE, T_CRIT, P_CRIT = 273.16, 647.096, 22.064e6
PRESSURES = (1e3, 1e4, 1e5, 1e6, 5e6, P_CRIT, 50e6, 100e6)
TEMPERATURES = (300.0, 400.0, 500.0, 600.0, 700.0, 800.0, 1000.0)
DRYNESS = (0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9)
T_MAX = 1073.15
COLORS = {"dome": "black", "p": "tab:blue", "T": "tab:red", "x": "tab:green"}


def _saturation(n=300):
    """Saturated states from the triple point up to the critical point."""
    T = T_TRIPLE + (T_CRIT - T_TRIPLE) * (1 - np.linspace(1, 0, n) ** 2)[:-1]
    f = dict(errors="nan")
    water = dict(T=T, p=kvtcore.PST(T, **f), s=kvtcore.SSWT(T, **f), h=kvtcore.HSWT(T, **f))
    steam = dict(T=T, p=water["p"], s=kvtcore.SSST(T, **f), h=kvtcore.HSST(T, **f))
    return water, steam


def _dome(ax, x, y, label=True):
    water, steam = _saturation()
    X = np.concatenate([water[x], steam[x][::-1]]) / _SCALE[x]
    Y = np.concatenate([water[y], steam[y][::-1]]) / _SCALE[y]
    ax.plot(X, Y, color=COLORS["dome"], lw=1.6, label="saturation" if label else None)


def _dryness(ax, x, y, values):
    T = np.linspace(T_TRIPLE, T_CRIT - 0.5, 200)
    states = {"T": T, "p": kvtcore.PST(T, errors="nan")}
    for i, q in enumerate(values):
        states["s"] = kvtcore.SSTX(T, q, errors="nan")
        states["h"] = kvtcore.HSTX(T, q, errors="nan")
        ax.plot(states[x] / _SCALE[x], states[y] / _SCALE[y], color=COLORS["x"], lw=0.7,
                ls="--", label="constant dryness x" if i == 0 else None)
        _label(ax, states[x] / _SCALE[x], states[y] / _SCALE[y], f"x={q:g}", COLORS["x"], at=0.15)


def _isobars(ax, x, y, values):
    for i, p in enumerate(values):
        # along enthalpy, so the wet part of each isobar is drawn too
        h = np.linspace(kvtcore.HPT(p, T_TRIPLE + 0.01), kvtcore.HPT(p, T_MAX), 600)
        states = {"h": h, "T": kvtcore.TPH(p, h, errors="nan"), "s": kvtcore.SPH(p, h, errors="nan")}
        X, Y = states[x] / _SCALE[x], states[y] / _SCALE[y]
        ax.plot(X, Y, color=COLORS["p"], lw=0.8, label="isobars" if i == 0 else None)
        _label(ax, X, Y, f"{p / 1e6:g} MPa", COLORS["p"])


def _isotherm(T, n=300):
    """States along one isotherm from low to high pressure, through the wet
    segment below the critical temperature."""
    p = np.geomspace(611.0, 100e6, n)
    if T >= T_CRIT:
        return dict(T=np.full(n, T), p=p, h=kvtcore.HPT(p, T, errors="nan"),
                    s=kvtcore.SPT(p, T, errors="nan"))
    ps = kvtcore.PST(T)
    vapour = np.append(p[p < ps * (1 - 1e-6)], ps)
    liquid = np.insert(p[p > ps * (1 + 1e-6)], 0, ps)
    h = np.concatenate([kvtcore.HPT(vapour[:-1], T, errors="nan"), [kvtcore.HSST(T), kvtcore.HSWT(T)],
                        kvtcore.HPT(liquid[1:], T, errors="nan")])
    s = np.concatenate([kvtcore.SPT(vapour[:-1], T, errors="nan"), [kvtcore.SSST(T), kvtcore.SSWT(T)],
                        kvtcore.SPT(liquid[1:], T, errors="nan")])
    pp = np.concatenate([vapour, liquid])
    return dict(T=np.full(pp.size, T), p=pp, h=h, s=s)


def _isotherms(ax, x, y, values):
    for i, T in enumerate(values):
        states = _isotherm(T)
        X, Y = states[x] / _SCALE[x], states[y] / _SCALE[y]
        ax.plot(X, Y, color=COLORS["T"], lw=0.8, label="isotherms" if i == 0 else None)
        _label(ax, X, Y, f"{T:g} K", COLORS["T"], at=0.97 if x == "h" else 0.9)


def _label(ax, X, Y, text, color, at=0.92):
    ok = np.flatnonzero(np.isfinite(X) & np.isfinite(Y))
    if ok.size:
        k = ok[int(at * (ok.size - 1))]
        ax.annotate(text, (X[k], Y[k]), color=color, fontsize=7, ha="center", va="bottom",
                    bbox=dict(boxstyle="round,pad=0.1", fc="white", ec="none", alpha=0.7))


_SCALE = {"T": 1.0, "p": 1e6, "h": 1e3, "s": 1e3}
_AXIS = {"T": "temperature T [K]", "p": "pressure p [MPa]", "h": "specific enthalpy h [kJ/kg]",
         "s": "specific entropy s [kJ/(kg K)]"}


def _figure(ax, x, y, title):
    import matplotlib.pyplot as plt
    if ax is None:
        fig, ax = plt.subplots(figsize=(8, 6), dpi=100)
    ax.set_xlabel(_AXIS[x])
    ax.set_ylabel(_AXIS[y])
    ax.set_title(title)
    ax.grid(True, lw=0.3, alpha=0.6)
    return ax.figure, ax


def _finish(ax, where="upper left"):
    ax.legend(loc=where, fontsize=8, framealpha=0.9)
    ax.figure.tight_layout()


def ts(ax=None, pressures=PRESSURES, dryness=DRYNESS):
    """The T-s diagram: saturation dome, isobars [Pa] and lines of constant
    dryness. Draws on `ax` if given; returns the figure."""
    fig, ax = _figure(ax, "s", "T", "Water and steam: T-s diagram")
    _dome(ax, "s", "T")
    _isobars(ax, "s", "T", pressures)
    _dryness(ax, "s", "T", dryness)
    ax.set_xlim(0, 10)
    ax.set_ylim(T_TRIPLE, T_MAX)
    _finish(ax)
    return fig


def hs(ax=None, pressures=PRESSURES, temperatures=TEMPERATURES, dryness=DRYNESS):
    """The h-s (Mollier) diagram: saturation dome, isobars [Pa], isotherms [K]
    and lines of constant dryness. Draws on `ax` if given; returns the figure."""
    fig, ax = _figure(ax, "s", "h", "Water and steam: h-s (Mollier) diagram")
    _dome(ax, "s", "h")
    _isobars(ax, "s", "h", pressures)
    _isotherms(ax, "s", "h", temperatures)
    _dryness(ax, "s", "h", dryness)
    ax.set_xlim(0, 10)
    ax.set_ylim(0, 4200)
    _finish(ax)
    return fig


def ph(ax=None, temperatures=TEMPERATURES, dryness=DRYNESS):
    """The p-h diagram (pressure on a log scale): saturation dome, isotherms
    [K] and lines of constant dryness. Draws on `ax` if given; returns the
    figure."""
    fig, ax = _figure(ax, "h", "p", "Water and steam: p-h diagram")
    _dome(ax, "h", "p")
    _isotherms(ax, "h", "p", temperatures)
    _dryness(ax, "h", "p", dryness)
    ax.set_yscale("log")
    ax.set_xlim(0, 4200)
    ax.set_ylim(611e-6, 100)
    _finish(ax, "lower right")
    return fig
