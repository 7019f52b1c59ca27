"""Sketches of the problems with axes and signs: black lines on white, symbols alone, so that one serves all languages."""
import re
from math import cos, pi, sin

from tool.shared import Svg

BLACK, SOIL, CLAY = "#000000", "#ffffff", "#ececec"
SIZE = 14


class Sketch(Svg):
    """An SVG with symbols whose index stands lower: "σ_z"."""

    def symbol(self, x, y, words, anchor="start"):
        runs = []  # text, lowered
        for plain, letter, index in re.findall(r"([^_]*?)(?:(\S)_(\w+)|$)", words):
            runs += [(plain, False), (letter, False), (index, True)]
        wide = sum(self._width(*run) for run in runs)
        left = {"start": x, "middle": x - wide / 2, "end": x - wide}[anchor]
        for text, lowered in runs:
            if text.strip():
                style = f'font-size="{SIZE * 0.7:.1f}"' if lowered else f'font-size="{SIZE}" font-style="italic"'
                self.parts.append(f'<text x="{left:.1f}" y="{y + 4 * lowered:.1f}" fill="{BLACK}" {style} '
                                  f'xml:space="preserve">{text}</text>')
            left += self._width(text, lowered)

    @staticmethod
    def _width(text, lowered):
        narrow = sum(c in " ,.:|()/ijlt1" for c in text)
        return (0.63 * (len(text) - narrow) + 0.35 * narrow) * SIZE * (0.7 if lowered else 1)

    def stroke(self, x1, y1, x2, y2, width=1.0, dash=None):
        self.line(x1, y1, x2, y2, BLACK, width, dash)

    def dart(self, x1, y1, x2, y2):
        self.arrow(x1, y1, x2, y2, BLACK)

    def measure(self, x1, y1, x2, y2, words, dx=0, dy=-5, anchor="middle"):
        """A dimension line with ticks across its ends."""
        length = max(((x2 - x1)**2 + (y2 - y1)**2)**0.5, 1e-9)
        nx, ny = -(y2 - y1) / length * 4, (x2 - x1) / length * 4
        for x, y in ((x1, y1), (x2, y2)):
            self.stroke(x - nx, y - ny, x + nx, y + ny)
        self.stroke(x1, y1, x2, y2, 0.7)
        self.symbol((x1 + x2) / 2 + dx, (y1 + y2) / 2 + dy, words, anchor)

    def ground(self, x1, x2, y):
        self.stroke(x1, y, x2, y, 1.6)

    def pressure(self, x1, x2, y, words, high=24):
        self.stroke(x1, y - high, x2, y - high)
        count = max(3, int((x2 - x1) / 22))
        for i in range(count + 1):
            x = x1 + (x2 - x1) * i / count
            self.dart(x, y - high, x, y)
        self.symbol((x1 + x2) / 2, y - high - 7, words, "middle")

    def hatch(self, x1, x2, y):
        """Rock, or what lets no water through."""
        self.stroke(x1, y, x2, y, 1.6)
        x = x1
        while x < x2:
            self.stroke(x + 8, y, x, y + 8, 0.7)
            x += 10

    def dot(self, x, y):
        self.circle(x, y, 3.2, BLACK, BLACK)


def _block(displacements):
    """Half-space in parallel perspective: the plan lies flat, z goes down."""
    s = Sketch(560, 300)
    origin = (170.0, 110.0)
    place = lambda x, y, z=0.0: (origin[0] + x + 0.5 * y, origin[1] - 0.38 * y + z)
    corners = [place(x, y) for x, y in ((-60, -45), (60, -45), (60, 45), (-60, 45))]
    s.path([*corners, corners[0]], BLACK, 1.3)
    for x, y in ((-60, -45), (60, -45), (60, 45), (-60, 45), (0, -45), (0, 45), (-60, 0), (60, 0), (0, 0)):
        s.dart(*place(x, y, -30), *place(x, y))
    top = [place(x, y, -30) for x, y in ((-60, -45), (60, -45), (60, 45), (-60, 45))]
    s.path([*top, top[0]], BLACK, 0.8)
    s.symbol(*place(0, 60, -34), "p", "middle")
    s.dart(*place(0, 0), *place(190, 0))
    s.symbol(place(190, 0)[0] + 6, place(190, 0)[1] + 5, "x")
    s.dart(*place(0, 0), *place(0, 150))
    s.symbol(place(0, 150)[0] + 6, place(0, 150)[1] + 2, "y")
    s.dart(*place(0, 0), *place(0, 0, 165))
    s.symbol(place(0, 0, 165)[0] - 14, place(0, 0, 165)[1] + 4, "z")
    point = (100, 70, 120)
    s.stroke(*place(0, 0), *place(100, 70), 0.7, "4 3")
    s.stroke(*place(100, 70), *place(*point), 0.7, "4 3")
    s.stroke(*place(100, 0), *place(100, 70), 0.7, "4 3")
    s.stroke(*place(0, 70), *place(100, 70), 0.7, "4 3")
    s.dot(*place(*point))
    px, py = place(*point)
    if displacements:
        s.dart(px, py, px + 34, py)
        s.symbol(px + 38, py + 5, "u")
        s.dart(px, py, px + 17, py - 13)
        s.symbol(px + 20, py - 15, "v")
        s.dart(px, py, px, py + 34)
        s.symbol(px + 6, py + 36, "w")
    else:
        s.symbol(px + 9, py + 5, "(x, y, z)")
    s.measure(*place(-60, -62), *place(60, -62), "a", dy=18)
    s.measure(*place(-76, -45), *place(-76, 45), "b", dx=-14, dy=2)
    _element(s, 440, 150, displacements)
    return s.written()


def _element(s, x, y, displacements):
    """The soil element with positive stresses, or the settlement between surface and depth."""
    half = 34
    s.box(x - half, y - half, 2 * half, 2 * half, "none", BLACK)
    if displacements:
        s.ground(x - 70, x + 70, y - 80)
        s.stroke(x - half, y - half, x - half, y - 80, 0.7, "4 3")
        s.stroke(x + half, y - half, x + half, y - 80, 0.7, "4 3")
        s.dart(x, y - 80, x, y - 52)
        s.symbol(x + 6, y - 56, "w(0)")
        s.dart(x, y, x, y + 24)
        s.symbol(x + 6, y + 22, "w(z)")
        s.symbol(x, y + 66, "s = w(0) − w(z)", "middle")
        return
    s.dart(x, y - half - 36, x, y - half)
    s.symbol(x - 8, y - half - 24, "σ_z", "end")
    s.dart(x, y + half + 36, x, y + half)
    s.dart(x - half - 36, y, x - half, y)
    s.symbol(x - half - 34, y - 8, "σ_x")
    s.dart(x + half + 36, y, x + half, y)
    s.dart(x - half + 8, y - half - 7, x + half - 8, y - half - 7)
    s.symbol(x + 12, y - half - 13, "τ_xz")
    s.dart(x + half - 8, y + half + 7, x - half + 8, y + half + 7)
    s.dart(x - half - 7, y - half + 8, x - half - 7, y + half - 8)
    s.dart(x + half + 7, y + half - 8, x + half + 7, y - half + 8)


def _layer(z_label):
    """Section: load, depth z, clay h with sublayers; plan at the right."""
    s = Sketch(560, 290)
    surface, top, bottom = 70, 130, 240
    s.ground(30, 300, surface)
    s.pressure(110, 210, surface, "p")
    s.box(30, top, 270, bottom - top, CLAY, BLACK)
    for i in range(1, 5):
        y = top + (bottom - top) * i / 5
        s.stroke(30, y, 300, y, 0.5, "2 3")
    s.measure(18, surface, 18, top, "z", dx=-12, dy=5)
    s.measure(18, top, 18, bottom, "h", dx=-12, dy=5)
    s.measure(312, top, 312, top + 22, "Δz", dx=8, dy=5, anchor="start")
    s.stroke(190, surface, 190, bottom, 0.8, "5 3")
    s.dart(160, surface, 160, bottom + 26)
    s.symbol(146, bottom + 30, "z")
    s.symbol(46, top + 60, "E_s" if not z_label else "C_c, e_0, γ_c")
    s.symbol(238, top + 16, "p_0")
    s.dot(190, surface)
    s.symbol(196, surface + 15, "(x, y)")
    x0, y0 = 440, 160
    s.box(x0 - 50, y0 - 40, 100, 80, "none", BLACK)
    s.dart(x0, y0, x0 + 90, y0)
    s.symbol(x0 + 92, y0 + 5, "x")
    s.dart(x0, y0, x0, y0 - 75)
    s.symbol(x0 + 6, y0 - 72, "y")
    s.dot(x0 + 30, y0 - 18)
    s.measure(x0 - 50, y0 + 56, x0 + 50, y0 + 56, "a", dy=18)
    s.measure(x0 - 64, y0 - 40, x0 - 64, y0 + 40, "b", dx=-12, dy=5)
    return s.written()


def _column():
    """Two layers with drainage, and the isochrones beside them."""
    s = Sketch(560, 290)
    top, middle, bottom = 70, 140, 245
    s.ground(30, 270, 40)
    s.measure(24, 40, 24, top, "z", dx=-12, dy=5)
    s.box(30, top, 240, middle - top, CLAY, BLACK)
    s.box(30, middle, 240, bottom - middle, SOIL, BLACK)
    s.symbol(120, 110, "c_v1, k_1")
    s.symbol(120, 200, "c_v2, k_2")
    s.measure(24, top, 24, middle, "h_1", dx=-13, dy=5)
    s.measure(24, middle, 24, bottom, "h_2", dx=-13, dy=5)
    for x in (70, 130, 190, 250):
        s.dart(x, top + 16, x, top - 14)
    s.hatch(30, 270, bottom)
    s.dart(330, top, 330, bottom + 20)
    s.symbol(318, bottom + 22, "z")
    s.dart(330, top, 520, top)
    s.symbol(524, top + 5, "u")
    s.path([(480, top), (480, bottom)], BLACK, 1.3)
    s.symbol(472, bottom + 18, "u_0")
    curve = [(330 + 120 * sin(pi / 2 * (i / 20)) ** 0.9, top + (bottom - top) * i / 20) for i in range(21)]
    s.path(curve, BLACK, 1.6)
    s.symbol(428, bottom + 18, "u_f")
    for i in range(1, 10):
        y = top + (bottom - top) * i / 10
        s.stroke(326, y, 334, y, 0.8)
    s.measure(346, top + 35, 346, top + 52.5, "Δz", dx=8, dy=5, anchor="start")
    return s.written()


def _history(kind):
    """Load history above, settlement below; the way to the sudden-load curve at the right."""
    s = Sketch(560, 290)
    left, axis = 40, 130
    s.dart(left, axis, 300, axis)
    s.symbol(304, axis + 5, "t")
    s.dart(left, axis, left, 20)
    s.symbol(left + 6, 28, "P_t [%]")
    s.path([(left, axis - 18), (70, axis - 18), (70, axis - 45), (125, axis - 45), (125, axis - 75), (200, axis - 75),
            (200, axis - 95), (290, axis - 95)], BLACK, 1.6)
    s.symbol(128, axis - 54, "ΔP_i")
    s.dart(left, axis, left, 275)
    s.symbol(left - 14, 270, "s")
    points = [(left + 8 * i, axis + 118 * (1 - 2.718**(-max(0, i - 1) / 9))) for i in range(32)]
    s.path(points, BLACK, 1.6)
    s.stroke(left, axis + 122, 300, axis + 122, 0.7, "4 3")
    s.symbol(304, axis + 126, "S_c")
    s.stroke(174, axis + 62, 186, axis + 74, 1.6)
    s.stroke(174, axis + 74, 186, axis + 62, 1.6)
    s.symbol(192, axis + 64, "S_m")
    if kind == 6:
        s.dart(360, 60, 540, 60)
        s.symbol(544, 65, "t")
        s.dart(360, 60, 360, 220)
        s.symbol(340, 215, "U [%]")
        curve = [(360 + 150 * i / 15, 60 + 140 * (1 - 2.718**(-i / 3.5))) for i in range(16)]
        s.path(curve, BLACK, 1.2)
        for i in (1, 3, 6, 10, 15):
            s.dot(*curve[i])
    elif kind == 7:
        s.box(380, 60, 110, 40, CLAY, BLACK)
        s.pressure(380, 490, 60, "", 20)
        s.measure(504, 60, 504, 100, "H_m", dx=8, dy=5, anchor="start")
        s.box(380, 150, 110, 90, CLAY, BLACK)
        s.measure(504, 150, 504, 240, "h", dx=8, dy=5, anchor="start")
        for x in (410, 460):
            s.dart(x, 165, x, 138)
            s.dart(x, 225, x, 252)
        s.symbol(435, 128, "H_b : H_m", "middle")
    else:
        s.box(380, 80, 120, 110, CLAY, BLACK)
        for x in (410, 470):
            s.dart(x, 98, x, 66)
        s.hatch(380, 500, 190)
        s.measure(514, 80, 514, 190, "h", dx=8, dy=5, anchor="start")
        s.symbol(392, 140, "c_v = k E_st/γ_w")
    return s.written()


def _raft(clay):
    s = Sketch(560, 310)
    surface = 90
    top = 130 if clay else surface
    bottom = 235
    s.ground(30, 300, surface)
    s.box(95, surface - 12, 150, 12, CLAY, BLACK)
    s.dart(190, surface - 62, 190, surface - 12)
    s.symbol(197, surface - 48, "Q")
    s.stroke(170, surface - 40, 170, surface + 8, 0.6, "4 3")
    s.measure(170, surface - 30, 190, surface - 30, "e_x", dx=-16, dy=-7, anchor="end")
    s.box(30, top, 270, bottom - top, CLAY if clay else SOIL, BLACK)
    s.hatch(30, 300, bottom)
    if clay:
        s.measure(18, surface, 18, top, "z", dx=-12, dy=5)
        s.symbol(150, 190, "E_s  |  C_c, e_0, γ_c, p_0", "middle")
    else:
        s.symbol(165, 200, "E_s, ν_s", "middle")
    s.measure(18, top, 18, bottom, "h", dx=-12, dy=5)
    low = surface + 22 if not clay else surface + 20
    pressures = [(95, 26), (102, 13), (112, 10), (140, 8), (200, 8), (228, 10), (238, 13), (245, 26)]
    s.path([(x, surface + p) for x, p in pressures], BLACK, 1.0)
    s.path([(95, surface), (95, surface + 26)], BLACK, 1.0)
    s.path([(245, surface), (245, surface + 26)], BLACK, 1.0)
    s.symbol(250, low + 4, "q")
    x0, y0 = 440, 150
    s.box(x0 - 60, y0 - 45, 120, 90, "none", BLACK)
    for i in range(1, 6):
        s.stroke(x0 - 60 + 20 * i, y0 - 45, x0 - 60 + 20 * i, y0 + 45, 0.4)
    for i in range(1, 5):
        s.stroke(x0 - 60, y0 - 45 + 18 * i, x0 + 60, y0 - 45 + 18 * i, 0.4)
    s.dart(x0 - 60, y0 + 45, x0 + 95, y0 + 45)
    s.symbol(x0 + 97, y0 + 50, "x")
    s.dart(x0 - 60, y0 + 45, x0 - 60, y0 - 80)
    s.symbol(x0 - 54, y0 - 76, "y")
    s.dot(x0 + 22, y0 - 14)
    s.measure(x0, y0 + 10, x0 + 22, y0 + 10, "e_x", dy=18)
    s.measure(x0 + 34, y0, x0 + 34, y0 - 14, "e_y", dx=8, dy=4, anchor="start")
    s.stroke(x0 - 8, y0, x0 + 40, y0, 0.8)
    s.stroke(x0, y0 - 22, x0, y0 + 16, 0.8)
    s.measure(x0 - 60, y0 + 66, x0 + 60, y0 + 66, "a", dy=18)
    s.measure(x0 + 76, y0 - 45, x0 + 76, y0 + 36, "b", dx=8, dy=5, anchor="start")
    return s.written()


def _disc():
    """The mesh of a circle: rings and spokes, and a sector."""
    s = Sketch(560, 300)
    x0, y0, radius = 160, 150, 110
    for i in range(1, 7):
        s.circle(x0, y0, radius * (i / 6)**0.5, "none", BLACK)
    for i in range(24):
        angle = pi / 12 * (i + 0.5)
        inner = radius / 6**0.5
        s.stroke(x0 + inner * cos(angle), y0 + inner * sin(angle), x0 + radius * cos(angle), y0 + radius * sin(angle), 0.4)
    s.dart(x0, y0, x0 + 150, y0)
    s.symbol(x0 + 154, y0 + 5, "x")
    s.dart(x0, y0, x0, y0 - 140)
    s.symbol(x0 + 6, y0 - 134, "y")
    s.measure(x0, y0 + 128, x0 + radius, y0 + 128, "a", dy=18)
    s.circle(440, 150, 90, "none", BLACK)
    for i in range(6):
        for j in range(24):
            r, angle = 15 * (i + 1), pi / 12 * j
            s.circle(440 + r * cos(angle), 150 + r * sin(angle), 1.3, BLACK, BLACK)
    s.dot(440, 150)
    s.measure(440, 256, 455, 256, "d", dy=18)
    return s.written()


def drawn():
    return {"stress": _block(False), "displacement": _block(True), "layer": _layer(True), "column": _column(),
            "history-points": _history(6), "history-oedometer": _history(7), "history-theory": _history(8), "raft": _raft(False),
            "raft-clay": _raft(True), "circle-meshes": _disc()}
