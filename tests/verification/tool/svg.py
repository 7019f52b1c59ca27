"""A small SVG writer: lines, boxes, circles, arrows, dimensions and texts on a white ground."""
from xml.sax.saxutils import escape

INK, SOIL, CLAY, BLUE, RED, GREY = "#202020", "#f3ecdf", "#dccfb8", "#1f5fa8", "#b02a2a", "#8a8a8a"
COLOURS = ("#1f5fa8", "#b02a2a", "#2e7d32", "#8e44ad", "#c77700", "#00838f")


def short(value):
    """A number as a label."""
    return f"{float(value):.4g}"


class Svg:
    def __init__(self, width, height):
        self.width, self.height, self.parts = width, height, []

    def line(self, x1, y1, x2, y2, colour=INK, width=1.0, dash=None):
        style = f' stroke-dasharray="{dash}"' if dash else ""
        self.parts.append(f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" stroke="{colour}" '
                          f'stroke-width="{width:g}"{style}/>')

    def path(self, points, colour=INK, width=1.5):
        text = " ".join(f"{x:.1f},{y:.1f}" for x, y in points)
        self.parts.append(f'<polyline points="{text}" fill="none" stroke="{colour}" stroke-width="{width:g}"/>')

    def box(self, x, y, width, height, fill="none", colour=INK):
        self.parts.append(f'<rect x="{x:.1f}" y="{y:.1f}" width="{width:.1f}" height="{height:.1f}" fill="{fill}" '
                          f'stroke="{colour}"/>')

    def circle(self, x, y, radius, fill="none", colour=INK):
        self.parts.append(f'<circle cx="{x:.1f}" cy="{y:.1f}" r="{radius:.1f}" fill="{fill}" stroke="{colour}"/>')

    def text(self, x, y, words, anchor="middle", colour=INK, size=11):
        self.parts.append(f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" fill="{colour}" '
                          f'font-size="{size}">{escape(str(words))}</text>')

    def arrow(self, x1, y1, x2, y2, colour=INK):
        """A line with its head at the second end."""
        self.line(x1, y1, x2, y2, colour, 1.4)
        length = max(((x2 - x1)**2 + (y2 - y1)**2)**0.5, 1e-9)
        ux, uy = (x2 - x1) / length, (y2 - y1) / length
        points = [(x2, y2), (x2 - 7 * ux - 3 * uy, y2 - 7 * uy + 3 * ux), (x2 - 7 * ux + 3 * uy, y2 - 7 * uy - 3 * ux)]
        self.parts.append('<polygon points="' + " ".join(f"{x:.1f},{y:.1f}" for x, y in points)
                          + f'" fill="{colour}"/>')

    def across(self, x1, x2, y, words):
        """A dimension along x."""
        self.line(x1, y - 4, x1, y + 4, GREY)
        self.line(x2, y - 4, x2, y + 4, GREY)
        self.line(x1, y, x2, y, GREY)
        self.text((x1 + x2) / 2, y - 3, words)

    def down(self, x, y1, y2, words):
        """A dimension along z."""
        self.line(x - 4, y1, x + 4, y1, GREY)
        self.line(x - 4, y2, x + 4, y2, GREY)
        self.line(x, y1, x, y2, GREY)
        self.text(x + 5, (y1 + y2) / 2 + 4, words, "start")

    def written(self):
        head = (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {self.width} {self.height}" '
                f'width="{self.width}" height="{self.height}" font-family="sans-serif">')
        return "\n".join([head, f'<rect width="{self.width}" height="{self.height}" fill="#ffffff"/>', *self.parts,
                          "</svg>\n"])
