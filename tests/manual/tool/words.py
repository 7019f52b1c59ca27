"""The page of the program's own words in Arabic: captions, fields and messages by problem."""
import re

from tool import fields
from tool.source import SOURCE_PAGES, lowered

HEAD = """# كلمات البرنامج

أسماء الحقول والرسائل كما يعرضها البرنامج، لكل مسألة. الصيغ والأمثلة في الصفحات الإنجليزية والألمانية: [English](../en/index.md)،
[Deutsch](../de/index.md). وما يبلغ به الحساب إلى جانب تقريره: [التنبيهات](notices.md).
"""
MESSAGES = "الرسائل"


def _messages(problem):
    """The numbers of the messages of a problem's page, in its order."""
    page = (SOURCE_PAGES / f"problem-{problem}.md").read_text(encoding="utf-8")
    return re.findall(r"^%message ([\d+>]+)", page, re.MULTILINE)


def page(book):
    lines = [HEAD]
    for problem, dialog in book.program.dialogs["ar"].items():
        lines += [f"## {problem}: {dialog['caption']}", "", *map(lowered, fields.table(dialog, "ar", [])), "",
                  f"{MESSAGES}:", ""]
        lines += [f"- {book.message(numbers, 'ar')}" for numbers in _messages(problem)] + [""]
    return "\n".join(lines)
