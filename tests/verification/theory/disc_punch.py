"""Rigid smooth disc of radius A under a load Q at the eccentricity e, on a half-space or on a layer.

On the half-space: Boussinesq (1885), Sadowsky (1928) for the pressures, Borowicka (1943) for the tilt. On a layer: the
contact problem as an equation of Fredholm's second kind (Lebedev and Ufliand 1958 for this way), solved by Gauss's rule
with as many points as the digits need. What a layer is, is told by the function g(k) in the transform of its surface's
settlement under a pressure of the transform p(k): w(k) = 2 (1 - nu^2)/E (1 - g(k)) p(k).
"""
import mpmath
import numpy


def settlement(Q, A, Nue, Es):
    """Of the disc on the half-space, cm."""
    return 100 * Q * (1 - mpmath.mpf(Nue)**2) / (2 * mpmath.mpf(A) * Es)


def tilt(moment, A, Nue, Es):
    """Of the disc on the half-space, radians."""
    return 3 * moment * (1 - mpmath.mpf(Nue)**2) / (4 * mpmath.mpf(A)**3 * Es)


def pressure(x, y, Q, e, A):
    """Contact pressure; eccentricity e along x."""
    A = mpmath.mpf(A)
    return Q * (1 + 3 * e * x / A**2) / (2 * mpmath.pi * A * mpmath.sqrt(A * A - x * x - y * y))


def force_on_ring(r1, r2, Q, A):
    """The part of a central load that a ring carries."""
    A = mpmath.mpf(A)
    return Q * (mpmath.sqrt(A * A - mpmath.mpf(r1)**2) - mpmath.sqrt(A * A - mpmath.mpf(r2)**2)) / A


def axis_sigma_z(z, Q, A):
    """Vertical stress on the axis under the disc (Sneddon 1946)."""
    t = (mpmath.mpf(z) / A)**2
    return Q / (2 * mpmath.pi * mpmath.mpf(A)**2) * (1 + 3 * t) / (1 + t)**2


def upper_part(h, nu):
    """g(k) of the upper h of the half-space: its shortening, as Steinbrenner (1934) takes a layer."""
    return lambda k: (1 + k * h / (2 * (1 - nu))) * numpy.exp(-k * h)


def smooth_base(h, nu):
    """g(k) of an elastic layer that slides on a rigid base."""
    del nu
    return lambda k: 1 - (numpy.cosh(2 * k * h) - 1) / (numpy.sinh(2 * k * h) + 2 * k * h)


def rough_base(h, nu):
    """g(k) of an elastic layer that sticks to a rigid base (Burmister 1956)."""
    kappa = 3 - 4 * nu

    def g(k):
        kh = 2 * k * h
        return 1 - (2 * kappa * numpy.sinh(kh) - 2 * kh) / (2 * kappa * numpy.cosh(kh) + kh * kh + 1 + kappa * kappa)

    return g


def _solve(g, A, h, odd, count=48):
    """phi on the abscissae of Gauss's rule over 0..A for a right side of 1 (even) or x (odd): t, weights, phi."""
    nodes, weights = numpy.polynomial.legendre.leggauss(count)
    t, w = (nodes + 1) * A / 2, weights * A / 2
    # the integral over k of g(k) cos(kt) cos(kx); g falls like exp(-2 k h) times a polynomial at the least
    end = 45 / h
    panels = int(numpy.ceil(end * A / 6)) + 20
    knodes, kweights = numpy.polynomial.legendre.leggauss(20)
    edges = numpy.linspace(1e-12, end, panels + 1)
    half = (edges[1:] - edges[:-1]) / 2
    k = ((edges[1:] + edges[:-1])[:, None] / 2 + half[:, None] * knodes).ravel()
    wk = (half[:, None] * kweights).ravel() * g(k)
    wave = (numpy.sin if odd else numpy.cos)(numpy.outer(t, k))
    kernel = 2 / numpy.pi * (wave * wk) @ wave.T
    phi = numpy.linalg.solve(numpy.eye(count) - kernel * w, t if odd else numpy.ones(count))
    return t, w, phi


def layer_settlement(Q, A, h, Nue, Es, layer=upper_part):
    """Of the disc under a central load on a layer h thick, cm."""
    Q, A, h, nu, E = (float(value) for value in (Q, A, h, Nue, Es))
    _, w, phi = _solve(layer(h, nu), A, h, odd=False)
    # phi = 2 delta/(pi c) times the unit solution with c = 2 (1 - nu^2)/E, and Q = 2 pi integral of phi
    return 100 * Q * (1 - nu * nu) / (2 * E * float(numpy.dot(w, phi)))


def layer_tilt(moment, A, h, Nue, Es, layer=upper_part):
    """Of the disc on a layer h thick, radians."""
    moment, A, h, nu, E = (float(value) for value in (moment, A, h, Nue, Es))
    t, w, phi = _solve(layer(h, nu), A, h, odd=True)
    # phi = 4 alpha/(pi c) times the unit solution, and M = 2 pi integral of phi t
    return moment * (1 - nu * nu) / (4 * E * float(numpy.dot(w, phi * t)))
