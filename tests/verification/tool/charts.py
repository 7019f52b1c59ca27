"""A chart of errors against a refinement, both axes logarithmic."""
import math

from tool.svg import COLOURS, GREY, Svg, short

LEFT, TOP, WIDE, HIGH = 84, 24, 330, 240


def error_chart(settings, curves, setting_name, unit):
    """settings: numbers along x; curves: (label, errors). A line marks an error of 1."""
    picture = Svg(LEFT + WIDE + 200, TOP + HIGH + 50)
    errors = [abs(error) for _, values in curves for error in values if error]
    low = math.floor(math.log10(max(min(errors), 1e-4)))
    high = max(math.ceil(math.log10(max(errors))), 1)
    first, last = math.log10(min(settings)), math.log10(max(settings))

    def place(setting, error):
        x = LEFT + (math.log10(setting) - first) / (last - first) * WIDE
        level = (math.log10(max(abs(error), 10.0**low)) - low) / (high - low)
        return x, TOP + HIGH - level * HIGH

    for decade in range(low, high + 1):
        y = place(settings[0], 10.0**decade)[1]
        picture.line(LEFT, y, LEFT + WIDE, y, "#dddddd")
        picture.text(LEFT - 6, y + 4, f"{10.0**decade:g} {unit}", "end", size=10)
    for setting in settings:
        x = place(setting, 1)[0]
        picture.line(x, TOP, x, TOP + HIGH, "#eeeeee")
        picture.text(x, TOP + HIGH + 15, short(setting), size=10)
    one = place(settings[0], 1)[1]
    picture.line(LEFT, one, LEFT + WIDE, one, GREY, 1.2, "5 3")
    picture.box(LEFT, TOP, WIDE, HIGH, colour=GREY)
    picture.text(LEFT + WIDE / 2, TOP + HIGH + 36, setting_name)
    picture.text(LEFT, TOP - 8, "error", "start")
    for number, (label, values) in enumerate(curves):
        colour = COLOURS[number % len(COLOURS)]
        points = [place(setting, error) for setting, error in zip(settings, values)]
        picture.path(points, colour)
        for x, y in points:
            picture.circle(x, y, 2.6, colour, colour)
        picture.line(LEFT + WIDE + 14, TOP + 12 + 20 * number, LEFT + WIDE + 34, TOP + 12 + 20 * number, colour, 2)
        picture.text(LEFT + WIDE + 40, TOP + 16 + 20 * number, label, "start", size=10)
    return picture.written()
