"""docs/overview.md says of the tree what is so: its floors are those of scripts/check-includes, and what it names exists."""

import importlib.machinery
import importlib.util
import re
import sys
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
OVERVIEW = PROJECT / "docs" / "overview.md"
HEAD = "| room | may include |"


def floors():
    sys.dont_write_bytecode = True
    loader = importlib.machinery.SourceFileLoader("check_includes", str(PROJECT / "scripts" / "check-includes"))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module.FLOORS


def row(room, allowed):
    return f"| `{room}` | {', '.join(f'`{path}`' for path in allowed) or 'nothing'} |"


def rows_told(text):
    """The rows of the table of floors."""
    lines = text.splitlines()
    begin = lines.index(HEAD) + 2
    rows = []
    for line in lines[begin:]:
        if not line.startswith("|"):
            break
        rows.append(line)
    return rows


def paths_named(text):
    """What stands between backticks and can only be a path: it has a slash or a suffix of ours."""
    found = set()
    for token in re.findall(r"`([^`\n]+)`", text):
        if re.fullmatch(r"[\w.*{},/-]+", token) and ("/" in token or re.search(r"\w\.(cpp|h|md|json|txt|py|qrc|ts)$", token)):
            found.add(token)
    return found


def alternatives(path):
    """"a/B.{h,cpp}" is a/B.h and a/B.cpp."""
    match = re.search(r"\{([^{}]*)\}", path)
    if not match:
        return [path]
    return [other for choice in match.group(1).split(",")
            for other in alternatives(path[:match.start()] + choice + path[match.end():])]


class Overview(unittest.TestCase):
    def test_its_floors_are_those_that_are_checked(self):
        expected = [row(room, allowed) for room, allowed in floors().items()]
        told = rows_told(OVERVIEW.read_text(encoding="utf-8"))
        self.assertEqual(told, expected, "\ndocs/overview.md: the rows of its table of floors ought to be\n" + "\n".join(expected))

    def test_what_it_names_exists(self):
        named = paths_named(OVERVIEW.read_text(encoding="utf-8"))
        self.assertGreater(len(named), 20)
        gone = sorted(path for token in named for path in alternatives(token) if not list(PROJECT.glob(path)))
        self.assertEqual(gone, [], "docs/overview.md names what is not there")


class Reading(unittest.TestCase):
    def test_a_table_ends_at_the_first_other_line(self):
        self.assertEqual(rows_told(f"# A\n\n{HEAD}\n|---|---|\n| `a` | nothing |\n\n| `b` | `a` |\n"), ["| `a` | nothing |"])

    def test_a_row_names_what_is_allowed(self):
        self.assertEqual(row("host", ["lesson"]), "| `host` | `lesson` |")
        self.assertEqual(row("lesson", []), "| `lesson` | nothing |")

    def test_paths_are_told_from_words(self):
        text = "`lesson/Condition.{h,cpp}`, `README.md`, `tests/unit/` and `click`, `Qt::Tool`, `./play --lesson N`"
        self.assertEqual(paths_named(text), {"lesson/Condition.{h,cpp}", "README.md", "tests/unit/"})
        self.assertEqual(alternatives("lesson/Condition.{h,cpp}"), ["lesson/Condition.h", "lesson/Condition.cpp"])


if __name__ == "__main__":
    unittest.main()
