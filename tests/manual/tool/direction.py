"""Arabic lines: what runs from left to right is kept together."""
import re

ARABIC = "\u0600-\u06ff"
# A run without Arabic letters and without Markdown's signs, from a sign, digit or letter to one of its kind. Brackets belong
# to it where they are a formula's: behind a bar or a root.
PIECE = rf"(?:[^{ARABIC}|*()\[\]«»:]|(?<=[/√])\([^{ARABIC}()]*\))"
RUN = re.compile(rf"[−+±√]?[0-9A-Za-zΑ-ω√]{PIECE}*(?<=[0-9A-Za-zΑ-ω²³⁰-⁹%)])")
APART = re.compile(r"(`[^`]*`|\[[^\]]*\]\([^)]*\)|^#+ .*$)")  # code, links and headings stay as they are


# A symbol's index stands on the line here, as in the reports ("Es"): a lowered one would part the run on paper.
INDEX = re.compile(r"(?<![A-Za-z0-9_])([A-Za-zα-ω])_([A-Za-z0-9]+)")


def isolated(line):
    parts = APART.split(line)
    for i in range(0, len(parts), 2):
        parts[i] = RUN.sub(lambda match: f"\u2066{match[0]}\u2069", INDEX.sub(r"\1\2", parts[i]))
    return "".join(parts)
