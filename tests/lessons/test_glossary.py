"""docs/glossary.md and authoring/glossary.json are the same table, and each English term stands in it once."""

import json
import unittest
from pathlib import Path

TREE = Path(__file__).resolve().parents[2]
LOCALES = ["en_US", "ja_JP", "zh_CN"]


def words(value):
    return value if isinstance(value, list) else [value]


def row_of(term):
    avoided = [word for locale in LOCALES for word in term.get("avoid", {}).get(locale, [])]
    return [", ".join(words(term["term"][locale])) for locale in LOCALES] + [term.get("meaning", ""), ", ".join(avoided)]


class Glossary(unittest.TestCase):
    def setUp(self):
        self.terms = json.loads((TREE / "authoring/glossary.json").read_text(encoding="utf-8"))["terms"]

    def test_page_and_table_are_the_same(self):
        heading, rows = "", []
        for line in (TREE / "docs/glossary.md").read_text(encoding="utf-8").split("## How texts")[0].splitlines():
            cells = [cell.strip() for cell in line.strip("|").split("|")]
            if line.startswith("## "):
                heading = line[3:]
            elif line.startswith("|") and cells[0] != "English" and set(cells[0]) != {"-"}:
                rows.append([heading] + cells)
        self.assertEqual(rows, [[term["about"]] + row_of(term) for term in self.terms])

    def test_no_english_term_stands_twice(self):
        terms = [word for term in self.terms for word in words(term["term"]["en_US"])]
        self.assertEqual([word for word in set(terms) if terms.count(word) > 1], [])

    def test_no_word_is_a_term_and_avoided(self):
        for locale in LOCALES:
            terms = {word for term in self.terms for word in words(term["term"][locale])}
            avoided = {word for term in self.terms for word in term.get("avoid", {}).get(locale, [])}
            self.assertEqual(terms & avoided, set(), locale)


if __name__ == "__main__":
    unittest.main()
