#!/usr/bin/env python3
"""Writes the manual as HTML pages and as one PDF.

    publish.py OUTPUT_DIR

Markdown to HTML by python3-markdown, HTML to PDF by weasyprint (outline, page numbers, tables with repeated heads, vector
drawings), both of Debian: scripts/install-packages manual.
"""
import re
import shutil
import sys
from pathlib import Path

try:
    import markdown
    import weasyprint
except ImportError as error:
    sys.exit(f"{error}: scripts/install-packages manual installs what the manual is made with")

DOCS = Path(__file__).resolve().parents[2] / "docs"
ENGLISH = ["manual", "notices", "stress-theory", "consolidation-theory", "time-theory", "raft-theory", "project-files",
           "command-line"]
ORDER = ["index", "which-problem", *(f"problem-{n}" for n in range(1, 11)), "answer", "studies", "compare", "settings-files"]
STYLE = (Path(__file__).parent / "manual.css").read_text(encoding="utf-8")
LANGUAGES = {"manual/en": "en", "manual/de": "de", "manual/ar": "ar"}


def pages():
    """All pages by their place under docs/, in the order of the book."""
    names = [f"manual/{language}/{name}" for language in ("en", "de") for name in ORDER]
    names[len(ORDER):len(ORDER)] = ENGLISH
    return [*names, "manual/de/notices", "manual/ar/words", "manual/ar/notices"]


def language_of(name):
    return next((language for folder, language in LANGUAGES.items() if name.startswith(folder)), "en")


def slug(text, separator):
    """Headings are linked to as in the Markdown pages: small letters, blanks as "-", no signs."""
    return re.sub(r"[^\w\- ]", "", text.lower()).replace(" ", separator)


def html_of(name):
    text = (DOCS / f"{name}.md").read_text(encoding="utf-8")
    converter = markdown.Markdown(extensions=["tables", "fenced_code", "sane_lists", "toc"],
                                  extension_configs={"toc": {"slugify": slug}})
    body = converter.convert(text)
    if language_of(name) == "ar":
        # weasyprint takes a line's direction from its first strong sign: a right-to-left mark ahead of what runs the other way.
        body = re.sub("\u2066|<code>", lambda match: "\u200f" + match[0], body)
    return body


def document(title, language, body):
    direction = "rtl" if language == "ar" else "ltr"
    return (f'<!DOCTYPE html>\n<html lang="{language}" dir="{direction}"><head><meta charset="utf-8"><title>{title}</title>'
            f"<style>{STYLE}</style></head>\n<body>{body}</body></html>\n")


def title_of(name):
    heading = re.search(r"^# (.*)$", (DOCS / f"{name}.md").read_text(encoding="utf-8"), re.MULTILINE)
    return heading[1]


def write_html(folder, names):
    known = set(names)
    for name in names:
        def link(match, name=name):
            target, section = match[1], match[2] or ""
            place = (DOCS / name).parent.joinpath(target).resolve().relative_to(DOCS.parent).as_posix()
            inside = place.removeprefix("docs/") in known
            return f'href="{target}.html{section}"' if inside else f'href="{target}.md{section}"'
        body = re.sub(r'href="([^":#]+)\.md(#[^"]*)?"', link, html_of(name))
        path = folder / f"{name}.html"
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(document(title_of(name), language_of(name), body), encoding="utf-8")
    shutil.copytree(DOCS / "manual" / "pictures", folder / "manual" / "pictures", dirs_exist_ok=True)


def anchor(name):
    return name.replace("/", "-")


def write_pdf(path, names):
    """One document: links between pages become links inside it, those that lead out of the book plain words."""
    parts = []
    for name in names:
        own = anchor(name)
        body = html_of(name)
        body = re.sub(r'\bid="([^"]+)"', rf'id="{own}.\1"', body)

        def link(match, name=name, own=own):
            target, section = match[1], match[2]
            if not target:
                return f'href="#{own}.{section[1:]}"'
            place = (DOCS / name).parent.joinpath(target).resolve()
            inside = place.is_relative_to(DOCS) and place.relative_to(DOCS).as_posix().removesuffix(".md")
            if inside not in names:
                return 'class="out"'
            return f'href="#{anchor(inside)}' + (f'.{section[1:]}"' if section else '"')
        body = re.sub(r'href="([^":#]*)(#[^"]*)?"', link, body)
        language = language_of(name)
        # Every page's pictures lie in the one folder.
        body = body.replace('src="../pictures/', f'src="{(DOCS / "manual" / "pictures").as_uri()}/')
        parts.append(f'<section id="{own}" lang="{language}" dir="{"rtl" if language == "ar" else "ltr"}">{body}</section>')
    cover = '<section class="cover"><h1>Lithmark</h1><p>Manual · Handbuch · دليل الاستخدام</p></section>'
    weasyprint.HTML(string=document("Lithmark: manual", "en", cover + "\n".join(parts))).write_pdf(path)


def main():
    folder = Path(sys.argv[1])
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    names = pages()
    write_html(folder, names)
    write_pdf(folder / "lithmark-manual.pdf", names)
    print(f"{len(names)} pages as HTML from manual/en/index.html on, and lithmark-manual.pdf, in {folder}")


if __name__ == "__main__":
    main()
