"""Uniform pressure on a rectangle A by B about the origin.

Stresses and displacements in the soil: Boussinesq's point load integrated over the rectangle by Gauss's rule. Vertical
stress under a corner: Newmark (1935), and its integral over depth. Settlements of the surface: Schleicher (1926); of the
upper h of the half-space: Steinbrenner (1934), as the surface's settlement less that at the depth h.
"""
import mpmath

from .elastic import State, gauss_panels, integrate


def state(x, y, z, P, A, B, Nue, Es):
    """All stresses and displacements at a depth z > 0."""
    x, y, z, P, A, B, Nue, Es = (float(value) for value in (x, y, z, P, A, B, Nue, Es))
    xs, wx = gauss_panels(-A / 2, A / 2, z)
    ys, wy = gauss_panels(-B / 2, B / 2, z)
    loads = P * wx[:, None] * wy[None, :]
    return integrate((xs[:, None], ys[None, :]), loads, x, y, z, Nue, Es)


def newmark(m, n):
    """Newmark (1935): sigma_z/p under the corner of a rectangle of the sides m z and n z, at the depth z."""
    m, n = mpmath.mpf(m), mpmath.mpf(n)
    V = m * m + n * n + 1
    V1 = (m * n)**2
    angle = mpmath.atan2(2 * m * n * mpmath.sqrt(V), V - V1)  # the second quadrant when V1 > V
    return (2 * m * n * mpmath.sqrt(V) / (V + V1) * (V + 1) / V + angle) / (4 * mpmath.pi)


def corners(x, y, A, B):
    """The four rectangles with a corner above the point, each with its sign: sides and sign."""
    for right in (1, -1):
        for far in (1, -1):
            yield right * (mpmath.mpf(A) / 2 * right - x), far * (mpmath.mpf(B) / 2 * far - y), 1


def superpose(corner, x, y, A, B):
    """A corner function f(a, b), odd in each side, summed over the rectangles that meet above (x, y)."""
    total = mpmath.mpf(0)
    for a, b, sign in corners(x, y, A, B):
        if a != 0 and b != 0:
            total += sign * mpmath.sign(a) * mpmath.sign(b) * corner(abs(a), abs(b))
    return total


def sigma_z(x, y, z, P, A, B):
    """Newmark's corner value, superposed."""
    z = mpmath.mpf(z)
    return P * superpose(lambda a, b: newmark(a / z, b / z), x, y, A, B)


def mean_sigma_z(x, y, z1, z2, P, A, B):
    """Mean of sigma_z over the depths z1 to z2, by quadrature of Newmark's corner value."""
    z1, z2 = mpmath.mpf(z1), mpmath.mpf(z2)

    def corner(a, b):
        inner = [d for d in (a / 4, a, b, 4 * b) if z1 < d < z2]
        depths = [z1] + sorted(set(inner)) + [z2]
        with mpmath.workdps(20):
            return mpmath.quad(lambda z: newmark(a / z, b / z) if z > 0 else mpmath.mpf(1) / 4, depths)

    return P * superpose(corner, x, y, A, B) / (z2 - z1)


def inverse_distance(a, b, z):
    """Integral of 1/R over a rectangle a by b, R from the depth z under its corner."""
    a, b, z = mpmath.mpf(a), mpmath.mpf(b), mpmath.mpf(z)
    value = a * mpmath.asinh(b / mpmath.sqrt(a * a + z * z)) + b * mpmath.asinh(a / mpmath.sqrt(b * b + z * z))
    return value - (z * mpmath.atan(a * b / (z * mpmath.sqrt(a * a + b * b + z * z))) if z else 0)


def settlement(x, y, z, P, A, B, Nue, Es):
    """w at the depth z >= 0, cm: Boussinesq's w integrated in closed form."""
    nu, z = mpmath.mpf(Nue), mpmath.mpf(z)

    def corner(a, b):
        third = z * mpmath.atan(a * b / (z * mpmath.sqrt(a * a + b * b + z * z))) if z else 0
        return 2 * (1 - nu) * inverse_distance(a, b, z) + third

    return 100 * (1 + nu) * P / (2 * mpmath.pi * Es) * superpose(corner, x, y, A, B)


def layer_settlement(x, y, h, P, A, B, Nue, Es):
    """Steinbrenner (1934): shortening of the upper h of the half-space, cm."""
    return settlement(x, y, 0, P, A, B, Nue, Es) - settlement(x, y, h, P, A, B, Nue, Es)


def schleicher(ratio):
    """Schleicher (1926): settlement of the corner of a rectangle over p B (1 - nu^2)/E, sides B and ratio B."""
    L = mpmath.mpf(ratio)
    return (L * mpmath.asinh(1 / L) + mpmath.asinh(L)) / mpmath.pi


def holl_sigma(a, b, z, nu):
    """Holl (1940): sigma_x, sigma_y, sigma_z, over p, under the corner of a rectangle a by b; for nu = 1/2 alone."""
    if nu != 0.5:
        raise ValueError("this form is for nu = 1/2")
    a, b, z = mpmath.mpf(a), mpmath.mpf(b), mpmath.mpf(z)
    R1, R2, R3 = mpmath.sqrt(a * a + z * z), mpmath.sqrt(b * b + z * z), mpmath.sqrt(a * a + b * b + z * z)
    angle = mpmath.atan(a * b / (z * R3))
    scale = 1 / (2 * mpmath.pi)
    return (scale * (angle - a * b * z / (R1**2 * R3)), scale * (angle - a * b * z / (R2**2 * R3)),
            scale * (angle + a * b * z / R3 * (1 / R1**2 + 1 / R2**2)))


__all__ = ["State", "state"]
