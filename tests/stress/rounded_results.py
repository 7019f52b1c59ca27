#!/usr/bin/env python3
"""The stress formulas once more, apart from the program: prints the table rounded_results.inc.

Every quantity that a formula names is rounded to 32 bits when it is assigned (f), everything else runs in 64 bits. The
program must give the same digits; a quantity rounded in the wrong place shows here.

    tests/stress/rounded_results.py > tests/stress/rounded_results.inc
"""
import random
import struct
from math import atan, cos, log, pi, sin, sqrt


def f(x):
    return struct.unpack("<f", struct.pack("<f", x))[0]


PI = f(pi)
NEAR = f(0.001)


def point_sigma(x, zc, R, nu, Q):
    t1 = f(1 / ((R + zc) * R))
    t2 = f(x**2 * (2 * R + zc) / ((R + zc) ** 2 * R**3))
    t3 = f(zc / R**3)
    t4 = f((1 - 2 * nu) * ((t1 - t2) - t3) / 3)
    t5 = f(x**2 * zc / R**5)
    return (3 * (t5 + t4) / (2 * PI)) * Q


def point_tau_xy(x, y, zc, R, nu, Q):
    t2 = f((2 * R + zc) * x * y / ((R + zc) ** 2 * R**3))
    t4 = f((1 - 2 * nu) * t2 / 3)
    t5 = f(x * y * zc / R**5)
    return (3 * (t5 - t4) / (2 * PI)) * Q


def point_load(x, y, zc, Q, nu, E):
    R = f(sqrt(zc**2 + (y**2 + x**2)))
    r = f(sqrt(y**2 + x**2)) or f(1e-10)
    outward = f(r * zc / R**2 - (1 - 2 * nu) * r / (R + zc))
    g = f((1 + nu) * outward / ((2 * PI * E) * R))
    u = 0.0 if x == 0 else g * Q * cos(atan(y / x)) * 100
    if x == 0 and y != 0:
        v = g * Q * 100
    else:
        v = 0.0 if y == 0 else g * Q * sin(atan(y / x)) * 100
    c = f((1 - nu) + (1 - nu))
    tw = f(zc**2 / R**3 + c / R)
    ts = f((c / r - c / R) - zc**2 / R**3)
    return [
        point_sigma(x, zc, R, nu, Q),
        point_sigma(y, zc, R, nu, Q),
        (3 * (zc**3 / R**5) / (2 * PI)) * Q,
        point_tau_xy(x, y, zc, R, nu, Q),
        (3 * (zc**2 * x / R**5) / (2 * PI)) * Q,
        (3 * (zc**2 * y / R**5) / (2 * PI)) * Q,
        u,
        v,
        ((1 + nu) * tw / (2 * PI * E)) * Q * 100,
        ((1 + nu) * ts / (2 * PI * E)) * Q * 100,
    ]


def rectangle(x, y, zc, p, a, b, nu, E):
    X = f(max(abs(a / 2 - x), abs(-a / 2 - x)))
    Y = f(max(abs(b / 2 - y), abs(-b / 2 - y)))
    corners = []
    for S, Xi, Yi in ((1, X, Y), (-1, X, f(Y - b)), (1, f(X - a), f(Y - b)), (-1, f(X - a), Y)):
        Rx, Ry = f(sqrt(zc**2 + Xi**2)), f(sqrt(zc**2 + Yi**2))
        R3 = f(sqrt(zc**2 + (Yi**2 + Xi**2)))
        corners.append((S, Xi, Yi, Rx, Ry, R3))

    def total(term, skip):
        s = 0.0
        for S, Xi, Yi, Rx, Ry, R3 in corners:
            if not (skip and (abs(Yi) <= NEAR or abs(Xi) <= NEAR)):
                s = f(s + S * f(term(Xi, Yi, Rx, Ry, R3)))
        return s

    def sigma_x(X, Y, Rx, Ry, R3):
        return X * Y * zc / (Rx * Rx * R3) - (
            2 * nu * atan((X * Y / zc) / R3) + (1 - 2 * nu) * (atan(Y / X) - atan((zc * Y / X) / R3)))

    def outward(X, Y, Rx, Ry, R3):
        h = f(zc * log((R3 + Y) / (R3 - Y)) / 2)
        k = f(((Y * log(zc + R3) + h) + X * atan(Y / X)) - atan((zc * Y / X) / R3))
        return (1 - 2 * nu) * k + h

    def swapped(term):
        return lambda X, Y, Rx, Ry, R3: term(Y, X, Ry, Rx, R3)

    def tau_xz(X, Y, Rx, Ry, R3):
        return (zc**2 * Y / Rx**2) / R3 - Y / Ry

    w1 = s1 = angle = 0.0
    for S, Xi, Yi, Rx, Ry, R3 in corners:
        if abs(Yi) > NEAR and abs(Xi) > NEAR:
            D = f(sqrt(Yi**2 + Xi**2))
            w1 = f(w1 + (S * (Yi * log((R3 + Xi) / (R3 - Xi))) + S * (Xi * log((R3 + Yi) / (R3 - Yi)))))
            s1 = f(s1 + (S * (Yi * log(((R3 - Xi) * (D + Xi) / (R3 + Xi)) / (D - Xi))) +
                         S * (Xi * log(((R3 - Yi) * (D + Yi) / (R3 + Yi)) / (D - Yi)))))
            angle = f(angle + S * zc * atan((Xi * Yi / zc) / R3))
    shear = (1 - nu) - (nu**2 + nu**2)
    sigma_z = lambda X, Y, Rx, Ry, R3: (1 / Ry**2 + 1 / Rx**2) * X * Y * zc / R3 + atan((X * Y / zc) / R3)
    tau_xy = lambda X, Y, Rx, Ry, R3: zc / R3 + (1 - 2 * nu) * log(zc + R3)
    return [
        -p * (total(sigma_x, True) / (2 * PI)),
        -p * (total(swapped(sigma_x), True) / (2 * PI)),
        (total(sigma_z, False) / (2 * PI)) * p,
        (total(tau_xy, True) / (2 * PI)) * p,
        -p * (total(tau_xz, False) / (2 * PI)),
        -p * (total(swapped(tau_xz), False) / (2 * PI)),
        (-100 * p) * ((1 + nu) * total(outward, True) / (2 * PI * E)),
        (-100 * p) * ((1 + nu) * total(swapped(outward), True) / (2 * PI * E)),
        ((1 - nu**2) * w1 - shear * angle) * (1 / (2 * PI * E)) * p * 100,
        (shear * angle + (1 - nu**2) * s1) * (1 / (2 * PI * E)) * p * 100,
    ]


def circle_mesh(a, N):
    K = round(N / 2 + 1)
    d = f(2 * a / N)
    radius, area = [0.0], [f(d**2 * PI / 4)]
    for _ in range(2, K):
        r = f(radius[-1] + d)
        radius.append(r)
        area.append(f((((d / 2 + r) ** 2 - (r - d / 2) ** 2) * PI / 2) / N))
    radius.append(a)
    area.append(f(((a**2 - (a - d / 2) ** 2) * PI / 2) / N))
    nodes, ring, theta = [(0.0, 0.0, area[0])], 0, 0.0
    for _ in range(round(N * N + 1) - 1):
        ring += 1
        nodes.append((f(radius[ring] * cos(theta)), f(radius[ring] * sin(theta)), area[ring]))
        if ring == K - 1:
            ring, theta = 0, f(theta + PI / N)
    return nodes


def circle(x, y, zc, p, a, nu, E, N):
    sums = [0.0] * 10
    c = f((1 - nu) + (1 - nu))

    def add(i, term):
        sums[i] = f(sums[i] + term)

    for node_x, node_y, A in circle_mesh(a, N):
        dx, dy, Qi, re = f(x - node_x), f(y - node_y), f(p * A), f(sqrt(A / PI))
        Rn, rn = f(sqrt(zc**2 + (dy**2 + dx**2))), f(sqrt(dy**2 + dx**2))
        if abs(dx) < NEAR and abs(dy) < NEAR:
            disc = zc**3 / (zc**2 + re**2) ** 1.5
            for i in (0, 1):
                add(i, (disc + ((2 * nu + 1) - ((1 + nu) + (1 + nu)) * zc / sqrt(zc**2 + re**2))) * (p * 0.5))
            add(2, (1 - disc) * p)
            B = f(c * (sqrt(zc**2 + re**2) - zc) - zc * (zc / sqrt(zc**2 + re**2) - 1))
            add(8, ((1 + nu) * p * B / E) * 100)
            add(9, ((2 * p * (1 - nu * nu) * re / E) - ((1 + nu) * p * B / E)) * 100)
        else:
            add(0, point_sigma(dx, zc, Rn, nu, Qi))
            add(1, point_sigma(dy, zc, Rn, nu, Qi))
            add(2, Qi * (3 * (zc**3 / Rn**5) / (2 * PI)))
            add(8, Qi * ((1 + nu) * (zc**2 / Rn**3 + c / Rn) / (2 * PI * E)) * 100)
            add(9, Qi * ((1 + nu) * ((c / rn - c / Rn) - zc**2 / Rn**3) / (2 * PI * E)) * 100)
        if abs(dx) > NEAR and abs(dy) > NEAR:
            add(3, point_tau_xy(dx, dy, zc, Rn, nu, Qi))
            add(4, Qi * (3 * (zc**2 * dx / Rn**5) / (2 * PI)))
            add(5, Qi * (3 * (zc**2 * dy / Rn**5) / (2 * PI)))
        g = f((1 + nu) * (rn * zc / Rn**2 - (1 - 2 * nu) * rn / (Rn + zc)) / ((2 * PI * E) * Rn))
        if abs(dx) > NEAR:
            t = -1 if x > node_x else 1
            add(6, -(Qi * g * cos(atan(abs(dy) / abs(dx))) * t * 100))
        if abs(dy) > NEAR:
            t = -1 if y > node_y else 1
            part = 1.0 if abs(dx) < NEAR else sin(atan(abs(dy) / abs(dx)))
            add(7, -(Qi * g * part * t * 100))
    return sums


def results(x, y, z, Q, P, A, B, nu, E, load, N):
    zc = f(1e-10) if z == 0 else z
    if load == 1:
        return [f(value) for value in point_load(x, y, zc, Q, nu, E)]
    if load == 2:
        return [f(value) for value in rectangle(x, y, zc, P, A, B, nu, E)]
    return [f(value) for value in circle(x, y, zc, P, A, nu, E, N)]


def main():
    random.seed(1885)
    print("// Written by rounded_results.py; the evaluation there is apart from the program's.")
    print("// {{x, y, z, Q, P, A, B, Nue, Es, LoadType}, divisions, {Sigma_x .. Tau_yz, u, v, w, s}},")
    for i in range(60):
        load = i % 3 + 1
        place = lambda: f(round(random.uniform(-6, 6), 2))
        case = [place(), place(), f(random.choice([0, round(random.uniform(0.1, 9), 2)])), f(round(random.uniform(1, 9e3))),
                f(round(random.uniform(1, 400))), f(round(random.uniform(0.5, 9), 1)), f(round(random.uniform(0.5, 9), 1)),
                f(random.choice([0, 0.25, 0.3, 0.5])), f(random.choice([5000, 12000.0])), load]
        divisions = random.choice([2, 4, 12, 13])
        numbers = ", ".join("%.9g" % value for value in case[:9])
        values = ", ".join("%.9g" % value for value in results(*case, divisions))
        print("{{%s, %d},\n %d,\n {%s}}," % (numbers, load, divisions, values))


main()
