"""Settlement of normally consolidated clay by its compression index, as summed by hand in a table of sublayers.

s = sum of dz Cc/(1 + e0) log10((p + dp)/p), p the stress before and dp the increase in the sublayer's middle or mean.
"""
from dataclasses import dataclass

import mpmath

from .elastic import gauss_panels


@dataclass
class Sublayer:
    """A row of the table: middle depth, thickness, stress before, mean increase, share of the settlement in cm."""
    z: object
    dz: object
    p: object
    dp: object
    s: object


def table(increase, z, h, count, Po, Gamma, Cc, eo):
    """Rows from the top down; increase(z1, z2) is the mean stress increase of an interval, Po the stress at the top."""
    z, h, Po, Gamma, Cc, eo = (mpmath.mpf(value) for value in (z, h, Po, Gamma, Cc, eo))
    dz = h / count
    rows = []
    for i in range(count):
        top = z + i * dz
        p = Po + Gamma * (i * dz + dz / 2)
        dp = mpmath.mpf(increase(top, top + dz))
        rows.append(Sublayer(top + dz / 2, dz, p, dp, 100 * dz * Cc / (1 + eo) * mpmath.log10((p + dp) / p)))
    return rows


def settlement(*arguments):
    """cm."""
    return sum(row.s for row in table(*arguments))


def integral(stress, z, h, Po, Gamma, Cc, eo):
    """cm: the law integrated over the depth, as for sublayers without end; stress(d) at the depth d."""
    z, h, Po, Gamma, Cc, eo = (mpmath.mpf(value) for value in (z, h, Po, Gamma, Cc, eo))
    depths, weights = gauss_panels(float(z), float(z + h), max(float(z), 0.5) / 2)
    total = sum(weight * float(mpmath.log10(1 + stress(mpmath.mpf(depth)) / (Po + Gamma * (depth - z))))
                for depth, weight in zip(depths, weights))
    return 100 * total * Cc / (1 + eo)


def limiting_depth(increase, step, Gamma, Cc, eo, tolerance):
    """Sublayers `step` thick from the surface down until one adds less than the tolerance: (depth, settlement in cm)."""
    step, Gamma, Cc, eo = (mpmath.mpf(value) for value in (step, Gamma, Cc, eo))
    count, total = 0, mpmath.mpf(0)
    while True:
        p = Gamma * step * (count + mpmath.mpf(1) / 2)
        dp = increase(count * step, (count + 1) * step)
        share = 100 * step * Cc / (1 + eo) * mpmath.log10((p + dp) / p)
        total += share
        count += 1
        if share < tolerance:
            return count * step, total
