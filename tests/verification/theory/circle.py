"""Uniform pressure P on a circle of radius A about the origin.

On the axis: closed forms (Love 1929, Foster and Ahlvin 1954). Elsewhere: Boussinesq's point load integrated over the circle;
the settlement of the surface by complete elliptic integrals (Love 1929).
"""
import mpmath
import numpy

from .elastic import State, gauss_panels, integrate


def axis(z, P, A, Nue, Es):
    """Stresses and w on the axis."""
    z, P, A, nu, E = (mpmath.mpf(value) for value in (z, P, A, Nue, Es))
    R = mpmath.sqrt(A * A + z * z)
    radial = P / 2 * ((1 + 2 * nu) - 2 * (1 + nu) * z / R + z**3 / R**3)
    w = P * (1 + nu) / E * (A * A / R + (1 - 2 * nu) * (R - z))
    return State(Sigma_x=radial, Sigma_y=radial, Sigma_z=P * (1 - z**3 / R**3), w=100 * w)


def state(x, y, z, P, A, Nue, Es):
    """All stresses and displacements at a depth z > 0: rings by Gauss's rule, each ring by the trapezoidal rule."""
    x, y, z, P, A, Nue, Es = (float(value) for value in (x, y, z, P, A, Nue, Es))
    radii, weights = gauss_panels(0, A, z)
    count = max(64, 16 * int(numpy.ceil(2 * numpy.pi * A / z)))
    angles = numpy.arange(count) * 2 * numpy.pi / count
    loads = P * (radii * weights)[:, None] * numpy.full(count, 2 * numpy.pi / count)[None, :]
    points = (radii[:, None] * numpy.cos(angles), radii[:, None] * numpy.sin(angles))
    return integrate(points, loads, x, y, z, Nue, Es)


def surface_w(r, P, A, Nue, Es):
    """Settlement of the surface at the radius r, cm; Love (1929)."""
    r, A, nu = mpmath.mpf(r), mpmath.mpf(A), mpmath.mpf(Nue)
    scale = 400 * (1 - nu**2) * P / (mpmath.pi * Es)
    if r <= A:
        return scale * A * mpmath.ellipe((r / A)**2)
    k = (A / r)**2
    return scale * r * (mpmath.ellipe(k) - (1 - k) * mpmath.ellipk(k))


def layer_settlement(x, y, h, P, A, Nue, Es):
    """Shortening of the upper h of the half-space, cm."""
    return settlement(x, y, 0, P, A, Nue, Es) - settlement(x, y, h, P, A, Nue, Es)


def mean_sigma_z(x, y, z1, z2, P, A):
    """Mean of sigma_z over the depths z1 to z2.

    On the axis by quadrature of the closed form. Elsewhere from displacements: sigma_z does not depend on nu, and with
    nu = 0 the vertical strain is sigma_z/E, so the shortening of the interval is the mean times its length over E.
    """
    if x == 0 and y == 0:
        R = mpmath.mpf(A)
        return mpmath.quad(lambda z: P * (1 - z**3 / mpmath.sqrt(R * R + z * z)**3),
                           [z1, (mpmath.mpf(z1) + z2) / 2, z2]) / (mpmath.mpf(z2) - z1)
    shortening = settlement(x, y, z1, P, A, 0, 1) - settlement(x, y, z2, P, A, 0, 1)
    return shortening / 100 / (mpmath.mpf(z2) - z1)


def settlement(x, y, z, P, A, Nue, Es):
    """w at the depth z >= 0, cm."""
    if z > 0:
        return state(x, y, z, P, A, Nue, Es).w
    return surface_w(mpmath.sqrt(mpmath.mpf(x)**2 + mpmath.mpf(y)**2), P, A, Nue, Es)


def sigma_z(x, y, z, P, A):
    """Vertical stress at a depth z > 0."""
    return state(x, y, z, P, A, 0.25, 1).Sigma_z
