"""Numbers as the pages print them."""
import re


def plain(value, digits, language):
    """With so many decimals ("2") or significant digits ("3g"), minus sign and decimal sign of the language."""
    if digits.endswith("g"):
        count = int(digits[:-1])
        text = f"{value:.{count}g}"
        if "e" in text:
            base, power = text.split("e")
            text = f"{base}·10{raised(int(power))}"
    else:
        text = f"{value:.{int(digits)}f}"
        if float(text) == 0:
            text = text.lstrip("-")
    return signs(text.replace("-", "−"), language)


def signs(text, language):
    """The decimal point as the language has it."""
    return text.replace(".", ",") if language == "de" else text


def signs_in(line, language):
    """A line with the decimal sign of the language in its numbers."""
    return re.sub(r"(?<=\d)\.(?=\d)", signs(".", language), line)


def raised(power):
    return str(power).translate(str.maketrans("-0123456789", "⁻⁰¹²³⁴⁵⁶⁷⁸⁹"))
