"""Time-settlement curves by hand: parabolas through points in exact fractions, and load histories."""
from fractions import Fraction

import mpmath

from . import consolidation


def _fraction(value):
    """Exactly what was typed."""
    return value if isinstance(value, Fraction) else Fraction(mpmath.nstr(mpmath.mpf(value), 17))


def parabola(times, values, t):
    """Lagrange's parabola through the origin and the points, as a table calculation has it: three points about t.

    The interval that holds t is the first point at or after it, with one neighbour on each side; at the end the last three
    points.
    """
    T = [Fraction(0)] + [_fraction(time) for time in times]
    V = [Fraction(0)] + [_fraction(value) for value in values]
    t = _fraction(t)
    after = next(i for i in range(1, len(T)) if t <= T[i])
    after = min(after, len(T) - 2)
    a, b, c = after - 1, after, after + 1
    result = Fraction(0)
    for i, j, k in ((a, b, c), (b, a, c), (c, a, b)):
        result += V[i] * (t - T[j]) * (t - T[k]) / ((T[i] - T[j]) * (T[i] - T[k]))
    return result


def percent(times, values, t):
    """The parabola's value as a number."""
    return _number(parabola(times, values, t))


def oedometer_times(minutes, drainage, specimen, unit):
    """Times of a building from those of an oedometer: squares of the thicknesses (Terzaghi 1925)."""
    ratio = (_fraction(drainage) / _fraction(specimen))**2 * 60 / unit
    return [_fraction(minute) * ratio for minute in minutes]


def superpose(final, steps, curve, time, delay=-1):
    """Settlement at a time: each step (time entered, per cent reached) adds its increment times curve(time since).

    delay 0 counts a step from the time that was entered; -1 from one unit before, as Lithmark does.
    """
    total, before = mpmath.mpf(0), mpmath.mpf(0)
    for entered, reached in steps:
        since = time - (int(entered) + delay)
        if since > 0:
            total += final * (reached - before) / 100 * _number(curve(since)) / 100
        before = reached
    return total


def _number(value):
    return mpmath.mpf(value.numerator) / value.denominator if isinstance(value, Fraction) else mpmath.mpf(value)


def through_points(times, values):
    """The curve of problem 6: parabolas up to the last point, level after it."""
    end = round(float(times[-1]))
    return lambda t: parabola(times, values, t) if t < end else _fraction(values[-1])


def of_theory(per_unit, done=97):
    """The curve of problem 8 from the time factor of one unit: 100 % after the first unit that reaches 97 %."""
    end = next(t for t in range(1, 1000) if consolidation.froehlich(per_unit * t) >= done)
    return lambda t: consolidation.froehlich(per_unit * t) if t <= end else mpmath.mpf(100)
