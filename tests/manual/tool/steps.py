"""Worked examples: formulas worked out step by step from a project's input, apart from the program."""
import math
import re

from tool.numbers import plain, signs_in

NAMES = {"pi": math.pi, "sqrt": math.sqrt, "atan": math.atan, "asin": math.asin, "ln": math.log, "exp": math.exp, "cos": math.cos,
         "sin": math.sin, "sum": sum, "range": range, "len": len, "max": max, "min": min, "abs": abs, "round": round, "hypot": math.hypot,
         "zip": zip, "float": float, "int": int, "list": list, "floor": math.floor, "str": str, "enumerate": enumerate, "T": None}


class Steps:
    """The names of a page: input of its project, what was worked out from it, and how each is printed."""

    def __init__(self, language):
        self.language = language
        self.values = dict(NAMES)
        self.printed = {}  # symbol: its number as printed

    def load(self, fields):
        self.values.update(fields)

    def define(self, code):
        exec(code, self.values)  # the page's own formulas; pylint: disable=exec-used

    def value(self, expression):
        return eval(expression, self.values)  # pylint: disable=eval-used

    def note(self, symbol, text):
        self.printed[symbol] = f"({text})" if text.startswith("−") else text

    def with_numbers(self, formula):
        """The formula with each symbol that has a number replaced by it."""
        known = "|".join(re.escape(word) for word in sorted(self.printed, key=len, reverse=True))
        return re.sub(rf"(?<![A-Za-zα-ω_])(?:{known})(?![A-Za-z0-9_])", lambda match: self.printed[match[0]], formula)

    def step(self, name, symbol, formula, expression, unit, digits):
        """One line: symbol = formula = with numbers = result."""
        value = self.value(expression)
        self.values[name] = value
        text = plain(value, digits, self.language)
        formula = signs_in(formula, self.language)
        filled = self.with_numbers(formula)
        self.note(symbol, text)
        terms = [symbol, *dict.fromkeys(term for term in (formula, filled) if term), f"**{text}**"]
        return " = ".join(terms) + ("\u00a0" + unit if unit else "")
