"""One-dimensional consolidation: Terzaghi (1923) as a series, two layers by eigenfunctions (Gray 1945, Schiffman and Stein 1970).

Depths are counted from the drained top of the clay. The two-layer solution satisfies each layer's equation, continuity of the
pressure and of the flow k du/dz at the interface; each layer's storage is k/Cv.
"""
import functools

import mpmath
import numpy

from . import circle, rectangle
from .elastic import gauss_panels

DAY, WEEK, MONTH, YEAR = 86400, 604800, 2628000, 31540000


def degree(Tv):
    """Terzaghi: mean degree of consolidation, per cent, for a constant initial pressure."""
    return 100 * (1 - mpmath.nsum(lambda m: 2 / _M(m)**2 * mpmath.exp(-_M(m)**2 * Tv), [0, _terms(Tv)]))


def pressure(Z, Tv):
    """Terzaghi: u/u0 at the depth Z = z/H below the drained face, for a constant initial pressure."""
    return mpmath.nsum(lambda m: 2 / _M(m) * mpmath.sin(_M(m) * Z) * mpmath.exp(-_M(m)**2 * Tv), [0, _terms(Tv)])


def _M(m):
    return (2 * m + 1) * mpmath.pi / 2


def _terms(Tv):
    """So many that the next is below 1e-25."""
    return int(mpmath.sqrt(60 / mpmath.mpf(Tv)) / mpmath.pi) + 2


def time_factor(U):
    """Tv of a degree of consolidation in per cent."""
    return mpmath.findroot(lambda Tv: degree(Tv) - U, (mpmath.mpf("0.001"), mpmath.mpf(3)), solver="anderson", tol=1e-15)


@functools.lru_cache(maxsize=None)
def under_rectangle(x, y, z, P, A, B, Cv, h, T, bottom_drained, unit=DAY):
    """One layer from the depth z, h thick, whose initial pressure is Newmark's stress: a SineSeries."""
    return SineSeries(lambda d: float(rectangle.sigma_z(x, y, z + d, P, A, B)), Cv, h, T, bottom_drained, unit)


@functools.lru_cache(maxsize=None)
def under_circle(z, P, A, Cv, h, T, bottom_drained, unit=DAY):
    """The same on the axis of a circle, whose stress has a closed form (Love 1929)."""
    return SineSeries(lambda d: float(circle.axis(z + d, P, A, 0, 1).Sigma_z), Cv, h, T, bottom_drained, unit)


class SineSeries:
    """One layer h thick with any initial pressure at the depth d below its top, after the time T."""

    def __init__(self, initial, Cv, h, T, bottom_drained, unit=DAY):
        h, spread = float(h), float(Cv) * float(T) * unit
        depths, weights = gauss_panels(0, h, h / 20)
        pressures = numpy.array([initial(depth) for depth in depths])
        count = numpy.arange(1, 400)
        self.rates = count * numpy.pi / h if bottom_drained else (2 * count - 1) * numpy.pi / (2 * h)
        self.rates = self.rates[self.rates**2 * spread < 40]
        coefficients = 2 / h * numpy.sin(numpy.outer(self.rates, depths)) @ (weights * pressures)
        self.waves = coefficients * numpy.exp(-self.rates**2 * spread)
        self.h, self.total = h, float(weights @ pressures)

    def degree(self):
        """Per cent."""
        return 100 * (1 - float(self.waves @ ((1 - numpy.cos(self.rates * self.h)) / self.rates)) / self.total)

    def pressure(self, d):
        return float(self.waves @ numpy.sin(self.rates * float(d)))


@functools.lru_cache(maxsize=None)
def two_layers(h1, h2, c1, c2, k1, k2, bottom_drained):
    return TwoLayers(h1, h2, c1, c2, k1, k2, bottom_drained)


class TwoLayers:
    """Layers of the thicknesses h1, h2, coefficients c1, c2 and permeabilities k1, k2 under a constant initial pressure."""

    def __init__(self, h1, h2, c1, c2, k1, k2, bottom_drained):
        self.h1, self.h2, self.c1, self.c2, self.k1, self.k2 = (mpmath.mpf(value) for value in (h1, h2, c1, c2, k1, k2))
        self.bottom_drained = bottom_drained
        self.rates = []

    def _sides(self, beta):
        """Arguments of the waves at the interface for the decay exp(-beta^2 t)."""
        return beta * self.h1 / mpmath.sqrt(self.c1), beta * self.h2 / mpmath.sqrt(self.c2)

    def _characteristic(self, beta):
        """Zero at an eigenvalue; free of poles."""
        p, q = self._sides(beta)
        r1, r2 = self.k1 / mpmath.sqrt(self.c1), self.k2 / mpmath.sqrt(self.c2)
        if self.bottom_drained:
            return r1 * mpmath.cos(p) * mpmath.sin(q) + r2 * mpmath.sin(p) * mpmath.cos(q)
        return r1 * mpmath.cos(p) * mpmath.cos(q) - r2 * mpmath.sin(p) * mpmath.sin(q)

    def _find(self, count):
        """The first eigenvalues: sign changes on a fine grid, then bisection and secants."""
        step = mpmath.pi / (self.h1 / mpmath.sqrt(self.c1) + self.h2 / mpmath.sqrt(self.c2)) / 16
        beta = step / 2 if not self.rates else self.rates[-1] + step / 4
        before = self._characteristic(beta)
        while len(self.rates) < count:
            after = self._characteristic(beta + step)
            if before * after < 0:
                self.rates.append(mpmath.findroot(self._characteristic, (beta, beta + step), solver="anderson", tol=1e-22))
            beta, before = beta + step, after

    def _modes(self, t):
        index = 0
        while True:
            self._find(index + 1)
            beta = self.rates[index]
            decay = mpmath.exp(-beta * beta * t)
            if decay < mpmath.mpf("1e-12"):
                return
            yield beta, decay
            index += 1

    def _mode(self, beta):
        """Amplitude of layer 2, integrals of the mode over each layer and its coefficient for a unit initial pressure."""
        p, q = self._sides(beta)
        s1, s2 = mpmath.sqrt(self.c1) / beta, mpmath.sqrt(self.c2) / beta
        wave = mpmath.sin if self.bottom_drained else mpmath.cos
        at_q = wave(q)
        if abs(at_q) > mpmath.mpf("1e-6"):
            factor = mpmath.sin(p) / at_q
        else:  # a node of the pressure at the interface: the flow tells the amplitude
            slope = -mpmath.cos(q) if self.bottom_drained else mpmath.sin(q)
            factor = self.k1 / s1 * mpmath.cos(p) / (self.k2 / s2 * slope)
        area1 = s1 * (1 - mpmath.cos(p))
        area2 = factor * s2 * ((1 - mpmath.cos(q)) if self.bottom_drained else mpmath.sin(q))
        square1 = self.h1 / 2 - s1 * mpmath.sin(2 * p) / 4
        sign = -1 if self.bottom_drained else 1
        square2 = factor**2 * (self.h2 / 2 + sign * s2 * mpmath.sin(2 * q) / 4)
        m1, m2 = self.k1 / self.c1, self.k2 / self.c2
        coefficient = (m1 * area1 + m2 * area2) / (m1 * square1 + m2 * square2)
        return factor, area1, area2, coefficient

    def degree(self, T, unit=DAY):
        """Mean degree of consolidation, per cent: areas of the pressures, as Lithmark's Uc."""
        left = mpmath.mpf(0)
        for beta, decay in self._modes(mpmath.mpf(T) * unit):
            _, area1, area2, coefficient = self._mode(beta)
            left += coefficient * decay * (area1 + area2)
        return 100 * (1 - left / (self.h1 + self.h2))

    def pressure(self, z, T, unit=DAY):
        """u/u0 at the depth z."""
        z, total = mpmath.mpf(z), mpmath.mpf(0)
        for beta, decay in self._modes(mpmath.mpf(T) * unit):
            factor, _, _, coefficient = self._mode(beta)
            if z <= self.h1:
                shape = mpmath.sin(beta * z / mpmath.sqrt(self.c1))
            else:
                wave = mpmath.sin if self.bottom_drained else mpmath.cos
                shape = factor * wave(beta * (self.h1 + self.h2 - z) / mpmath.sqrt(self.c2))
            total += coefficient * decay * shape
        return total


def froehlich(Tv):
    """Terzaghi and Froehlich (1936): parabolic isochrones, degree of consolidation in per cent."""
    Tv = mpmath.mpf(Tv)
    if Tv <= mpmath.mpf(1) / 12:
        return 100 * 2 * mpmath.sqrt(Tv / 3)
    return 100 * (1 - mpmath.mpf(2) / 3 * mpmath.exp(-(3 * Tv - mpmath.mpf(1) / 4)))
