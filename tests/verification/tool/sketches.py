"""A sketch of a project: section and plan with the measures of its fields."""
from tool.svg import BLUE, CLAY, GREY, INK, RED, SOIL, Svg, short

WIDTH, HEIGHT = 500, 210
SURFACE = 52          # height of the soil's surface
DEEP = 190            # lower end of the section
MIDDLE, PLAN = 130, 360


def sketch(fields, problem):
    """The picture's text for the fields of a project."""
    picture = Svg(WIDTH, HEIGHT)
    if problem <= 3:
        _point(picture, fields)
    elif problem <= 5:
        _clay(picture, fields, problem)
    elif problem <= 8:
        _history(picture, fields)
    else:
        _raft(picture, fields, problem)
    return picture.written()


def _soil(picture):
    picture.box(10, SURFACE, 240, DEEP - SURFACE, SOIL, SOIL)
    picture.line(10, SURFACE, 250, SURFACE, INK, 1.5)


def _half(fields):
    """Half the load's width."""
    kind = int(fields["LoadType"])
    return 0 if kind == 1 else float(fields["A"]) / (2 if kind == 2 else 1)


def _load(picture, fields, scale):
    kind = int(fields["LoadType"])
    if kind == 1:
        picture.arrow(MIDDLE, SURFACE - 36, MIDDLE, SURFACE, RED)
        picture.text(MIDDLE + 8, SURFACE - 26, f"Q = {short(fields['Q'])} kN", "start")
        return
    half = _half(fields) * scale
    picture.line(MIDDLE - half, SURFACE - 20, MIDDLE + half, SURFACE - 20, RED)
    for i in range(7):
        x = MIDDLE - half + i * half / 3
        picture.arrow(x, SURFACE - 20, x, SURFACE, RED)
    picture.text(MIDDLE, SURFACE - 26, f"p = {short(fields['P'])} kN/m²")


def _plan(picture, fields, extent, point=True):
    kind = int(fields["LoadType"])
    scale = 66 / extent
    y0 = 112
    picture.line(PLAN - 80, y0, PLAN + 80, y0, GREY, 0.6, "3 3")
    picture.line(PLAN, y0 - 76, PLAN, y0 + 76, GREY, 0.6, "3 3")
    a = float(fields["A"])
    if kind == 1:
        picture.circle(PLAN, y0, 3, RED, RED)
    elif kind == 2:
        b = float(fields["B"])
        picture.box(PLAN - a / 2 * scale, y0 - b / 2 * scale, a * scale, b * scale, "#f6dede")
        picture.text(PLAN, y0 + b / 2 * scale + 13, f"a = {short(a)} m")
        picture.text(PLAN + a / 2 * scale + 4, y0 + 16, f"b = {short(b)} m", "start")
    else:
        picture.circle(PLAN, y0, a * scale, "#f6dede")
        picture.text(PLAN, y0 + a * scale + 13, f"radius a = {short(a)} m")
    if point:
        x, y = float(fields["x"]), float(fields["y"])
        picture.circle(PLAN + x * scale, y0 - y * scale, 3, BLUE, BLUE)
        picture.text(PLAN + x * scale, y0 - y * scale - 6, f"({short(x)}, {short(y)})", colour=BLUE)
    picture.text(PLAN, 14, "plan")


def _reach(fields):
    """Greatest horizontal measure of load and point."""
    kind, a = int(fields["LoadType"]), float(fields["A"])
    measures = [abs(float(fields["x"])), abs(float(fields["y"])), 0.5]
    if kind == 2:
        measures += [a / 2, float(fields["B"]) / 2]
    elif kind == 3:
        measures.append(a)
    return max(measures)


def _point(picture, fields):
    _soil(picture)
    x, z = float(fields["x"]), float(fields["z"])
    scale = min(100 / _reach(fields), 100 / max(z, 0.5))
    _load(picture, fields, scale)
    px, pz = MIDDLE + x * scale, SURFACE + z * scale
    picture.line(px, SURFACE, px, pz, GREY, 0.8, "3 3")
    picture.circle(px, pz, 3.5, BLUE, BLUE)
    picture.text(px + 8, pz + 12, f"z = {short(z)} m", "start", BLUE)
    _plan(picture, fields, _reach(fields))


def _layer(picture, top, bottom, words):
    picture.box(10, top, 240, bottom - top, CLAY)
    picture.text(60, (top + bottom) / 2 + 4, words)


def _drained(picture, y, drained):
    for i in range(9):
        x = 20 + i * 28
        if drained:
            picture.circle(x, y, 1.6, BLUE, BLUE)
        else:
            picture.line(x, y, x + 8, y + 6, INK)


def _clay(picture, fields, problem):
    _soil(picture)
    loaded = problem == 4 or not fields["Pressure"]
    z = float(fields["z"]) if loaded else 0.0
    heights = [float(fields["h"])] if problem == 4 else [float(fields["hLayer"](i + 1)) for i in
                                                        range(int(fields["NumLayers"]))]
    total = z + sum(heights)
    scale = (DEEP - SURFACE - 12) / total
    edge = SURFACE + z * scale
    for number, height in enumerate(heights, 1):
        name = "h" if problem == 4 else f"h{number}"
        _layer(picture, edge, edge + height * scale, f"{name} = {short(height)} m")
        edge += height * scale
    if z:
        picture.down(195, SURFACE, SURFACE + z * scale, f"z = {short(z)} m")
    if problem == 5:
        _drained(picture, SURFACE + z * scale, True)
        _drained(picture, edge, int(fields["DrainageCondition"]) == 1)
        picture.text(130, SURFACE + z * scale - 5 if not loaded else SURFACE - 42, "drained at the top")
    if loaded:
        _load(picture, fields, min(100 / _reach(fields), scale if problem == 4 else 1e9))
        _plan(picture, fields, _reach(fields))
    else:
        picture.text(PLAN, 60, f"u0 = {short(fields['U'])} kN/m², constant")
        for number in range(1, len(heights) + 1):
            words = f"Cv{number} = {short(fields['CvLayer'](number))} m²/s"
            if len(heights) == 2:
                words += f", k{number} = {short(fields['KLayer'](number))} m/s"
            picture.text(PLAN, 60 + 22 * number, words)
        picture.text(PLAN, 60 + 22 * (len(heights) + 1),
                     "bottom drained" if int(fields["DrainageCondition"]) == 1 else "bottom impermeable")


def _history(picture, fields):
    times, loads = [int(t) for t in fields["LoadTime"]], [float(p) for p in fields["LoadValue"]]
    end = max(times[-1] * 1.3, 4)
    left, low, wide, high = 50, 170, 250, 130
    place = lambda t, p: (left + t / end * wide, low - p / 110 * high)
    points, before = [place(0, 0)], 0.0
    for time, load in zip(times, loads):
        points += [place(time, before), place(time, load)]
        before = load
        picture.text(place(time, load)[0], place(time, load)[1] - 4, f"{short(load)} %", size=10)
    points.append(place(end, before))
    picture.path(points, RED)
    picture.line(left, low, left + wide, low)
    picture.line(left, low, left, low - high)
    for time in times:
        picture.text(place(time, 0)[0], low + 14, time, size=10)
    picture.text(left + wide / 2, low + 30, f"time entered, {fields['TimeUnit']}")
    picture.text(left - 4, low - high - 8, "load", "start")
    for row, words in enumerate((f"Sc = {short(fields['Sc'])} cm", f"h = {short(fields['h'])} m",
                                 f"{int(fields['DrainageFaces'])} drained face(s)")):
        picture.text(380, 60 + 24 * row, words)
    if fields["Ms"]:
        picture.text(380, 132, f"{short(fields['Sm'])} cm measured at {int(fields['DesignCode'])}", colour=BLUE)


def _raft(picture, fields, problem):
    _soil(picture)
    round_raft = int(fields["LoadType"]) == 3
    a = float(fields["A"]) * (2 if round_raft else 1)
    z = float(fields["z"]) if problem == 10 else 0.0
    h = float(fields["h"])
    wide = 130
    depth = min((DEEP - SURFACE - 20) * 0.8, (z + h) * wide / a)
    scale = depth / (z + h)
    top = SURFACE + z * scale
    _layer(picture, top, SURFACE + depth, f"h = {short(h)} m")
    if z:
        picture.down(195, SURFACE, top, f"z = {short(z)} m")
    picture.box(MIDDLE - wide / 2, SURFACE - 9, wide, 9, "#c9c9c9")
    e = float(fields["Exz_x"])
    x = MIDDLE + e / a * wide
    picture.arrow(x, SURFACE - 44, x, SURFACE - 9, RED)
    picture.text(x + 8, SURFACE - 32, f"Q = {short(fields['Q'])} kN", "start")
    size = max(a, a if round_raft else float(fields["B"]))
    unit = 120 / size
    if round_raft:
        picture.circle(PLAN, 112, a / 2 * unit, "#e8e8e8")
        picture.text(PLAN, 112 + a / 2 * unit + 14, f"radius a = {short(a / 2)} m")
    else:
        b = float(fields["B"])
        picture.box(PLAN - a / 2 * unit, 112 - b / 2 * unit, a * unit, b * unit, "#e8e8e8")
        picture.text(PLAN, 112 + b / 2 * unit + 14, f"{short(a)} m by {short(b)} m")
    picture.circle(PLAN + e * unit, 112 - float(fields["Exz_y"]) * unit, 3, RED, RED)
    words = "pressures of a rigid punch" if fields["AnalysisType"] else "numerical analysis"
    picture.text(PLAN, 14, words)
