// Elastic half-space in 64 bits, independent of the kernels: the point load in cylindrical coordinates, and uniform
// loads as integrals of it by Gauss-Legendre quadrature. Signs: compression positive, w downward, u and v outward.
#pragma once

#include <array>
#include <cmath>
#include <functional>
#include <numbers>

namespace lithmark::tests {

struct Theory {
    double Sigma_x = 0, Sigma_y = 0, Sigma_z = 0, Tau_xy = 0, Tau_xz = 0, Tau_yz = 0;
    double u = 0, v = 0, w = 0;  // in the unit of the coordinates

    void Add(const Theory& other, double weight) {
        Sigma_x += weight * other.Sigma_x;
        Sigma_y += weight * other.Sigma_y;
        Sigma_z += weight * other.Sigma_z;
        Tau_xy += weight * other.Tau_xy;
        Tau_xz += weight * other.Tau_xz;
        Tau_yz += weight * other.Tau_yz;
        u += weight * other.u;
        v += weight * other.v;
        w += weight * other.w;
    }
};

// Boussinesq (1885), as in Timoshenko and Goodier (1951), art. 123: radial, tangential and vertical components, turned
// into the axes. Not for a point on the axis.
inline Theory PointTheory(double x, double y, double z, double Q, double nu, double E) {
    const double pi = std::numbers::pi, r = std::hypot(x, y), R = std::hypot(r, z), c = x / r, s = y / r;
    const double radial =
        Q / (2 * pi) * (3 * r * r * z / std::pow(R, 5) - (1 - 2 * nu) * (1 / (r * r) - z / (r * r * R)));
    const double tangential = Q / (2 * pi) * (1 - 2 * nu) * (1 / (r * r) - z / (r * r * R) - z / std::pow(R, 3));
    const double shear = 3 * Q / (2 * pi) * r * z * z / std::pow(R, 5);
    const double outward =
        -(1 - 2 * nu) * (1 + nu) * Q / (2 * pi * E * r) * (1 - z / R - r * r * z / ((1 - 2 * nu) * std::pow(R, 3)));
    Theory t;
    t.Sigma_x = radial * c * c + tangential * s * s;
    t.Sigma_y = radial * s * s + tangential * c * c;
    t.Sigma_z = 3 * Q / (2 * pi) * std::pow(z, 3) / std::pow(R, 5);
    t.Tau_xy = (radial - tangential) * s * c;
    t.Tau_xz = shear * c;
    t.Tau_yz = shear * s;
    t.u = outward * c;
    t.v = outward * s;
    t.w = Q / (2 * pi * E) * ((1 + nu) * z * z / std::pow(R, 3) + 2 * (1 - nu * nu) / R);
    return t;
}

// The integral of f over from .. to by `panels` panels of five points.
inline void Integrate(double from, double to, int panels, const std::function<void(double, double)>& f) {
    static const std::array<double, 3> kAbscissa = {0, 0.5384693101056831, 0.9061798459386640};
    static const std::array<double, 3> kWeight = {0.5688888888888889, 0.4786286704993665, 0.2369268850561891};
    const double half = (to - from) / panels / 2;
    for (int i = 0; i < panels; ++i) {
        const double middle = from + (2 * i + 1) * half;
        f(middle, kWeight[0] * half);
        for (std::size_t k = 1; k < 3; ++k) {
            f(middle - kAbscissa[k] * half, kWeight[k] * half);
            f(middle + kAbscissa[k] * half, kWeight[k] * half);
        }
    }
}

// A pressure p on the rectangle a by b about the origin. Good to eight digits for depths from a twentieth of the sides
// on.
inline Theory RectangleTheory(double x, double y, double z, double p, double a, double b, double nu, double E) {
    Theory sum;
    Integrate(-a / 2, a / 2, 60, [&](double xi, double wx) {
        Integrate(-b / 2, b / 2, 60,
                  [&](double eta, double wy) { sum.Add(PointTheory(x - xi, y - eta, z, p, nu, E), wx * wy); });
    });
    return sum;
}

// A pressure p on the circle of radius a about the origin.
inline Theory CircleTheory(double x, double y, double z, double p, double a, double nu, double E) {
    Theory sum;
    Integrate(0, a, 60, [&](double r, double wr) {
        Integrate(0, 2 * std::numbers::pi, 60, [&](double angle, double wa) {
            sum.Add(PointTheory(x - r * std::cos(angle), y - r * std::sin(angle), z, p, nu, E), wr * wa * r);
        });
    });
    return sum;
}

}  // namespace lithmark::tests
