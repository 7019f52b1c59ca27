"""The table of a problem's fields, from the dialogs' own tables."""
from tool.numbers import signs
from tool.symbols import printed

HEADS = {"en": ("symbol", "field for scripts", "unit", "range", "default", "meaning"),
         "de": ("Zeichen", "Feld für Skripte", "Einheit", "Bereich", "Vorgabe", "Bedeutung"),
         "ar": ("الرمز", "الحقل", "الوحدة", "المجال", "الافتراضي", "المعنى")}
ANY = {"en": "any", "de": "beliebig", "ar": "أي قيمة"}
NONE = "–"
COORDINATES = ("x", "y", "z")  # their boxes stand behind words alone


def _limit(value):
    return value if isinstance(value, str) else f"{value:g}".replace("-", "−")


def range_of(row, language):
    lower, upper = row["lower"], row["upper"]
    if lower is None and upper is None:
        return ANY[language]
    if upper is None:
        return f"≥ {_limit(lower)}"
    if lower is None:
        return f"≤ {_limit(upper)}"
    return f"{_limit(lower)} … {_limit(upper)}"


def _default(text):
    if text.startswith("."):
        text = "0" + text
    return text.replace("#TRUE#", "true").replace("#FALSE#", "false") if text else NONE


def rows_of(dialog, language, extra):
    """Rows of the table: choices first, then boxes, then what the dialog shows in tables of its own."""
    rows = []
    for choice in dialog["choices"]:
        says = " · ".join(p["caption"] if p["value"] == p["caption"] else f"{_default(p['value'])}: {p['caption']}"
                          for p in choice["positions"])
        if choice["kind"] == "tick":
            says = f"{_default(choice['positions'][1]['value'])}: {choice['positions'][1]['caption']}"
        values = ", ".join(_default(p["value"]) for p in choice["positions"])
        rows.append((NONE, choice["field"], NONE, values, _default(choice["default"]), says))
    seen = set()
    for box in dialog["boxes"]:
        key = box["field"]
        if key in seen:
            continue
        seen.add(key)
        unit = box["unit"].strip("[]").replace("-", NONE) or NONE
        symbol = box["symbol"] or (key if key in COORDINATES else "")
        rows.append((printed(symbol), key, unit, range_of(box, language), _default(box["default"]), box["label"]))
    rows += extra
    return rows


def table(dialog, language, extra):
    lines = ["| " + " | ".join(HEADS[language]) + " |", "|---|---|---|---|---|---|"]
    for symbol, field, unit, limits, default, meaning in rows_of(dialog, language, extra):
        cells = (symbol, f"`{field}`", unit, signs(limits, language), signs(default, language), meaning)
        if language == "ar":  # what runs from left to right is kept together
            cells = tuple(f"\u2066{cell}\u2069" for cell in cells[:3]) + (f"\u2068{cells[3]}\u2069", *cells[4:])
        lines.append("| " + " | ".join(cells) + " |")
    return lines


def named(dialog, extra):
    """The fields that the table has, without element numbers."""
    boxes = [box["field"] for box in dialog["boxes"]] + [choice["field"] for choice in dialog["choices"]]
    return {name.split("(")[0] for name in boxes + [row[1] for row in extra]}
