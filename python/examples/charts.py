"""Draws the T-s, h-s (Mollier) and p-h diagrams of water and steam and saves
them as PNG files:

    python3 charts.py [folder]        (default: docs/images of the checkout)
"""
import os
import sys

import matplotlib

matplotlib.use("Agg")          # no display needed

import kvtcore.charts  # noqa: E402

folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(
    os.path.dirname(os.path.abspath(__file__)), "..", "..", "docs", "images")
os.makedirs(folder, exist_ok=True)
for name, draw in (("chart-ts", kvtcore.charts.ts), ("chart-hs", kvtcore.charts.hs),
                   ("chart-ph", kvtcore.charts.ph)):
    path = os.path.join(folder, name + ".png")
    draw().savefig(path, dpi=80)
    print(path)
