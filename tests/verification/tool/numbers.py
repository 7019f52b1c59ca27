"""Numbers as the pages print them."""
import mpmath


def plain(value, digits=6):
    """Six significant digits, without an exponent where that is readable."""
    value = float(value)
    text = f"{value:.{digits}g}"
    if "e+" in text and abs(value) < 1e9:
        return f"{float(text):.0f}"
    if "e-" in text and abs(value) > 1e-6:
        return mpmath.nstr(mpmath.mpf(text), digits, min_fixed=-8)
    return text


def difference(compared):
    """What the program's value differs by: per cent where the tolerance is in per cent, otherwise in the value's unit."""
    size = abs(compared.difference)
    if size == 0:
        return "0"
    sign = "+" if compared.difference > 0 else "-"
    if compared.row.tolerance.endswith("%"):
        part = 100 * size / abs(compared.expected)
        return "< 0.0001 %" if part < mpmath.mpf("0.0001") else f"{sign}{plain(part, 2)} %"
    if size < mpmath.mpf("1e-6") * abs(compared.expected):
        return "0"
    return f"{sign}{plain(size, 2)}"


def tolerance(row):
    return row.tolerance.replace("%", " %")
