"""Point load on the elastic half-space (Boussinesq 1885), and what follows from its stresses by Hooke's law.

In cylindrical coordinates about the load, turned into the axes. Works on mpmath numbers and, for integrals over loaded
areas, on numpy arrays alike: `m` is the module that has sqrt.
"""
from dataclasses import dataclass, fields

import mpmath
import numpy


@dataclass
class State:
    """Stresses in kN/m2 and displacements in cm at a point of the soil."""
    Sigma_x: object = 0
    Sigma_y: object = 0
    Sigma_z: object = 0
    Tau_xy: object = 0
    Tau_xz: object = 0
    Tau_yz: object = 0
    u: object = 0
    v: object = 0
    w: object = 0


@dataclass
class Strain:
    Varepsilon_x: object
    Varepsilon_y: object
    Varepsilon_z: object
    Gamma_xy: object
    Gamma_xz: object
    Gamma_yz: object


def point_load(x, y, z, Q, nu, E, m=mpmath, pi=mpmath.pi):
    """Boussinesq (1885) in the form of Timoshenko and Goodier, for a point off the axis or, on it, the limits."""
    r2 = x * x + y * y
    R = m.sqrt(r2 + z * z)
    # sigma_r, sigma_theta with (1 - z/R)/r^2 = 1/(R (R + z)), which holds on the axis too
    near = 1 / (R * (R + z))
    radial = Q / (2 * pi) * (3 * r2 * z / R**5 - (1 - 2 * nu) * near)
    hoop = Q / (2 * pi) * (1 - 2 * nu) * (near - z / R**3)
    shear = 3 * Q / (2 * pi) * z * z / R**5                       # times r
    outward = (1 + nu) * Q / (2 * pi * E) * (z / R**3 - (1 - 2 * nu) * near)  # times r
    difference = Q / (2 * pi) * (3 * z / R**5 - (1 - 2 * nu) * near_difference(R, z))
    # sigma_x = radial cos^2 + hoop sin^2 = hoop + (radial - hoop) cos^2, and (radial - hoop)/r^2 is finite on the axis
    return State(
        Sigma_x=hoop + difference * x * x,
        Sigma_y=hoop + difference * y * y,
        Sigma_z=3 * Q * z**3 / (2 * pi * R**5),
        Tau_xy=difference * x * y,
        Tau_xz=shear * x,
        Tau_yz=shear * y,
        u=100 * outward * x,
        v=100 * outward * y,
        w=100 * (1 + nu) * Q / (2 * pi * E) * (z * z / R**3 + 2 * (1 - nu) / R),
    )


def near_difference(R, z):
    """(2/(R (R + z)) - z/R^3)/r^2, without the subtraction that loses digits near the axis: (2 R + z)/(R^3 (R + z)^2)."""
    return (2 * R + z) / (R**3 * (R + z)**2)


def surface_w(x, y, Q, nu, E):
    """Settlement of the surface beside a point load, cm."""
    return 100 * (1 - nu**2) * Q / (mpmath.pi * E * mpmath.sqrt(x * x + y * y))


def strains(state, nu, E):
    """Hooke's law."""
    G = E / (2 * (1 + nu))
    return Strain((state.Sigma_x - nu * (state.Sigma_y + state.Sigma_z)) / E,
                  (state.Sigma_y - nu * (state.Sigma_x + state.Sigma_z)) / E,
                  (state.Sigma_z - nu * (state.Sigma_x + state.Sigma_y)) / E,
                  state.Tau_xy / G, state.Tau_xz / G, state.Tau_yz / G)


def principal(state):
    """The three principal stresses of the full tensor, the greatest first."""
    tensor = numpy.array([[state.Sigma_x, state.Tau_xy, state.Tau_xz],
                          [state.Tau_xy, state.Sigma_y, state.Tau_yz],
                          [state.Tau_xz, state.Tau_yz, state.Sigma_z]], dtype=float)
    return numpy.linalg.eigvalsh(tensor)[::-1]


def plane_circle(state):
    """Mohr's circle of the x-z plane: greatest shear, greatest and least normal stress."""
    radius = mpmath.sqrt(mpmath.mpf(state.Tau_xz)**2 + ((mpmath.mpf(state.Sigma_z) - state.Sigma_x) / 2)**2)
    middle = (mpmath.mpf(state.Sigma_z) + state.Sigma_x) / 2
    return radius, middle + radius, middle - radius


def deviator(s1, s2, s3):
    """q of three principal stresses."""
    return mpmath.sqrt(((s1 - s2)**2 + (s2 - s3)**2 + (s1 - s3)**2) / 2)


def integrate(points, weights_pressure, x, y, z, nu, E):
    """Sum of point loads weights_pressure at points (two arrays) in 64 bits: an integral by Gauss's rule."""
    state = point_load(x - points[0], y - points[1], z, weights_pressure, nu, E, m=numpy, pi=numpy.pi)
    return State(*(float(numpy.sum(getattr(state, f.name))) for f in fields(State)))


def gauss_panels(start, end, panel, order=20):
    """Abscissae and weights of Gauss's rule on panels no longer than `panel`."""
    panels = max(1, int(numpy.ceil((end - start) / panel)))
    nodes, weights = numpy.polynomial.legendre.leggauss(order)
    edges = numpy.linspace(start, end, panels + 1)
    half = (edges[1:] - edges[:-1]) / 2
    middle = (edges[1:] + edges[:-1]) / 2
    return (middle[:, None] + half[:, None] * nodes).ravel(), (half[:, None] * weights).ravel()
