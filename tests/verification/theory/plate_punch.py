"""Rigid smooth rectangle A by B on a half-space or on the upper h of it: boundary elements.

No closed solution is known. Pressure is constant on elements whose edges stand at the cosines of equal angles, close beside the
raft's edges where the pressure grows without limit; the settlement of every element's middle is that of the raft. The
integrals over the elements are closed (Schleicher 1926; Steinbrenner 1934). A quarter is solved, and meshes of two sizes are
extrapolated. Independent of the program's mesh, influence factors and solver.
"""
import functools

import numpy


def _corner(a, b, h, nu):
    """Settlement of the surface under the corner of a by b for p = E = 1, odd in both sides; h None: half-space."""
    radius = numpy.hypot(a, b)
    with numpy.errstate(divide="ignore", invalid="ignore"):
        inverse = a * numpy.arcsinh(b / numpy.abs(a)) + b * numpy.arcsinh(a / numpy.abs(b))
    value = 2 * (1 - nu) * inverse
    if h is not None:
        below = numpy.sqrt(radius**2 + h * h)
        angle = h * numpy.arctan(a * b / (h * below))
        inverse = a * numpy.arcsinh(b / numpy.sqrt(a * a + h * h)) + b * numpy.arcsinh(a / numpy.sqrt(b * b + h * h))
        value = value - 2 * (1 - nu) * (inverse - angle) - angle
    return (1 + nu) / (2 * numpy.pi) * value


def _quarter(count):
    """Edges and middles of the elements from the middle of a side (0) to its end (1)."""
    edges = numpy.sin(numpy.arange(count + 1) / count * numpy.pi / 2)
    return edges, (edges[1:] + edges[:-1]) / 2


def _flexibility(A, B, h, nu, count, signs):
    """Settlements of the middles under unit pressure on element and images: signs of the images in x and y."""
    ex, mx = _quarter(count)
    ey, my = _quarter(count)
    ex, mx, ey, my = ex * A / 2, mx * A / 2, ey * B / 2, my * B / 2
    matrix = numpy.zeros((count * count, count * count))
    X, Y = (value.ravel() for value in numpy.meshgrid(mx, my, indexing="ij"))
    left, low = (value.ravel() for value in numpy.meshgrid(ex[:-1], ey[:-1], indexing="ij"))
    right, high = (value.ravel() for value in numpy.meshgrid(ex[1:], ey[1:], indexing="ij"))
    for sx, wx in ((1, 1), (-1, signs[0])):
        for sy, wy in ((1, 1), (-1, signs[1])):
            x, y = sx * X[:, None], sy * Y[:, None]
            part = (_corner(right - x, high - y, h, nu) - _corner(left - x, high - y, h, nu)
                    - _corner(right - x, low - y, h, nu) + _corner(left - x, low - y, h, nu))
            matrix += wx * wy * part
    return matrix, X, Y, (right - left) * (high - low)


def _extrapolated(value, counts):
    """Values on three meshes, carried to the limit by Aitken's rule."""
    first, second, third = (value(count) for count in counts)
    return third - (third - second)**2 / ((third - second) - (second - first))


COUNTS = (5, 10, 20)


@functools.lru_cache(maxsize=None)
def settlement(Q, A, B, Nue, Es, h=None):
    """Under a central load, cm."""
    Q, A, B, nu, E = (float(value) for value in (Q, A, B, Nue, Es))
    h = None if h is None else float(h)

    def unit(count):
        matrix, _, _, areas = _flexibility(A, B, h, nu, count, (1, 1))
        return 1 / (4 * numpy.dot(areas, numpy.linalg.solve(matrix, numpy.ones(count * count))))

    return 100 * Q / E * _extrapolated(unit, COUNTS)


@functools.lru_cache(maxsize=None)
def tilt(moment, A, B, Nue, Es, h=None):
    """About the middle under a moment Q e along the side A, radians."""
    moment, A, B, nu, E = (float(value) for value in (moment, A, B, Nue, Es))
    h = None if h is None else float(h)

    def unit(count):
        matrix, X, _, areas = _flexibility(A, B, h, nu, count, (-1, 1))
        return 1 / (4 * numpy.dot(areas * X, numpy.linalg.solve(matrix, X)))

    return moment / E * _extrapolated(unit, COUNTS)


def arcsine_force(x1, x2, y1, y2, Q, A, B):
    """Force on a part of the raft when the pressure is the product of two strip punches (Sadowsky 1928)."""
    angle = numpy.arcsin
    part = lambda first, last, side: float(angle(2 * last / side) - angle(2 * first / side))
    return Q / numpy.pi**2 * part(float(x1), float(x2), float(A)) * part(float(y1), float(y2), float(B))
