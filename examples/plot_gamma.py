#!/usr/bin/env python3
"""Plots the gamma curves of two parameter sets over each other: plot_gamma.py A B [OUT.png]

Without OUT a window opens. Curves that stand in schedules are drawn for each gain point, paler for higher gains.
"""

import sys

import matplotlib
import numpy as np

if len(sys.argv) == 4:
    matplotlib.use("Agg")
import matplotlib.pyplot as plt

import qv_database as qv


def draw(axes, db: qv.Database, colour: str, name: str) -> None:
    fixed = db["GC_2"]
    x = np.cumsum(fixed.curvePx) if fixed.userCurveX else np.arange(1, fixed.curve.size + 1) * 64
    axes[0].plot(x, fixed.curve, color=colour, label=name)
    for table in db["AGC_2"].tables[: db["AGC_2"].tableNumber]:
        in_use = table.gain > 0
        for gain, curve in zip(table.gain[in_use], table.curve[in_use]):
            axes[1].plot(curve, color=colour, alpha=1 / (1 + np.log2(max(gain, 1))), label=f"{name}, gain {gain:g}")


def main() -> None:
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    figure, axes = plt.subplots(1, 2, figsize=(11, 4.5), layout="constrained")
    for file, colour in zip(sys.argv[1:3], ("tab:blue", "tab:orange")):
        with qv.Database(file) as db:
            draw(axes, db, colour, file)
    axes[0].set_title("GC_2")
    axes[1].set_title("AGC_2")
    axes[0].legend()
    if len(sys.argv) == 4:
        figure.savefig(sys.argv[3])
    else:
        plt.show()


if __name__ == "__main__":
    main()
