"""What scripts/write-lessons makes of the sources of small trees made here, and what it refuses."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TREE = Path(__file__).resolve().parents[2]
BUILD = Path(os.environ.get("BUILD", TREE / "build/release"))
FIXTURE = TREE / "tests/support/source-tree"
LOCALES = ["en_US", "ja_JP", "zh_CN"]

SOURCE = """# A lesson of two steps.

[1] Welcome
at        screen
condition click,
icon      eye
en_US     Hello & welcome.
en_US     Click.
ja_JP     ようこそ。
zh_CN     欢迎。

[7] The second row
at        MainWindow rows row 1
condition list,1
icon      click
jump      1
showArrow false
text      1
"""

SCENARIO = """\ufeffvar scenario = [
    {
"id":1,
"name":"Welcome",
"folder":false,
"translationId":1,
"x":-9999,
"y":-9999,
"windowKey":"",
"condition":"click,",
"hint":qsTr("#1"),
"icon":"eye",
"jump":-1,
"jumpNo":-1,
"command":"",
"showArrow":true,
"prohibited":false    
    },
    {
"id":7,
"name":"The second row",
"folder":false,
"translationId":1,
"x":7,
"y":-27,
"windowKey":"MainWindow",
"condition":"list,1",
"hint":qsTr("#1"),
"icon":"click",
"jump":1,
"jumpNo":-1,
"command":"",
"showArrow":false,
"prohibited":false    
    }
];"""


class WriteLessons(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = Path(folder.name, "tree")
        shutil.copytree(FIXTURE, self.tree)

    def path(self, name):
        return self.tree / name

    def write_source(self, text=SOURCE, lesson=2):
        path = self.path(f"authoring/lessons/TutorialStep{lesson}.lesson")
        path.parent.mkdir(exist_ok=True)
        path.write_text(text, encoding="utf-8")
        return path

    def run_it(self, *arguments):
        command = [sys.executable, TREE / "scripts/write-lessons", "--tree", self.tree, "--build", BUILD, *arguments]
        return subprocess.run(command, capture_output=True, text=True, check=False)

    def bytes_of_all(self):
        return {path: path.read_bytes() for path in self.tree.rglob("*") if path.is_file()}

    def assert_refused(self, text, problem):
        path = self.write_source(text)
        before = self.bytes_of_all()
        run = self.run_it()
        self.assertEqual((run.returncode, run.stderr), (1, f"{path}:{problem}\n"))
        self.assertEqual(self.bytes_of_all(), before)

    def test_writes_the_scenario_in_its_form(self):
        self.write_source()
        self.assertEqual(self.run_it().returncode, 0)
        self.assertEqual(self.path("resource/qml/Tutorial/TutorialStep2.js").read_text(encoding="utf-8"), SCENARIO)

    def test_writes_the_texts_behind_those_of_the_lessons_before(self):
        before = {locale: self.path(f"resource/translations/{locale}.ts").read_text(encoding="utf-8") for locale in LOCALES}
        self.write_source()
        self.run_it()
        for locale in LOCALES:
            text = self.path(f"resource/translations/{locale}.ts").read_text(encoding="utf-8")
            self.assertTrue(text.startswith(before[locale].removesuffix("</TS>\n")), text)
        english = self.path("resource/translations/en_US.ts").read_text(encoding="utf-8")
        self.assertIn("<name>TutorialStep2</name>\n    <message>\n      <source>#1</source>\n"
                      "      <translation>Hello &amp; welcome.\nClick.</translation>\n    </message>\n  </context>\n</TS>", english)

    def test_replaces_what_it_wrote_before(self):
        self.write_source()
        self.run_it()
        first = self.bytes_of_all()
        self.write_source(SOURCE.replace("欢迎。", "你好。"))
        self.assertEqual(self.run_it().stdout, f"{self.path('resource/translations/zh_CN.ts')}: written\n")
        self.write_source()
        self.run_it("2")
        self.assertEqual(self.bytes_of_all(), first)

    def test_puts_a_lesson_between_others(self):
        self.write_source(lesson=10)
        self.write_source(lesson=2)
        self.run_it("10")
        self.run_it("2")
        text = self.path("resource/translations/ja_JP.ts").read_text(encoding="utf-8")
        self.assertLess(text.index("TutorialStep2<"), text.index("TutorialStep10<"))

    def test_check_names_what_is_not_as_its_source_makes_it(self):
        self.write_source()
        self.run_it()
        self.assertEqual((self.run_it("--check").returncode, self.run_it("--check").stdout), (0, ""))
        self.write_source(SOURCE.replace("row 1", "row 0").replace("ようこそ", "こんにちは"))
        before = self.bytes_of_all()
        run = self.run_it("--check")
        self.assertEqual(run.returncode, 1)
        self.assertEqual([line.split(": ")[0] for line in run.stdout.splitlines()],
                         [str(self.path("resource/translations/ja_JP.ts")),
                          str(self.path("resource/qml/Tutorial/TutorialStep2.js"))])
        self.assertEqual(self.bytes_of_all(), before)

    def test_takes_a_point_where_nothing_has_a_name(self):
        self.write_source(SOURCE.replace("rows row 1", "point 100 200"))
        self.run_it()
        self.assertIn('"x":62,\n"y":68,', self.path("resource/qml/Tutorial/TutorialStep2.js").read_text(encoding="utf-8"))

    def test_refuses_what_it_cannot_read(self):
        self.assert_refused(SOURCE.replace("icon      eye", "icons     eye"),
                            '6: "icons     eye" is no "[ID] name" and no field; the fields are at, condition, icon, command, '
                            "showArrow, jump, jumpNo, text, en_US, ja_JP, zh_CN")
        self.assert_refused(SOURCE.replace("icon      eye\n", ""), '3: item 1 lacks "icon"')
        self.assert_refused(SOURCE.replace("[7]", "[1]"), "12: there is an item 1 above")
        self.assert_refused(SOURCE.replace("jump      1", "jump      one"), '16: "jump" takes the id of an item, not "one"')
        self.assert_refused(SOURCE.replace("jump      1", "icon      eye"), '16: the item has "icon" already')
        self.assert_refused("at screen\n", '1: a field stands behind an item\'s "[ID] name"')
        self.assert_refused(SOURCE.replace("showArrow false", "showArrow true"),
                            '17: "showArrow" is only written where it is false')

    def test_refuses_texts_that_are_missing_or_double(self):
        own = 'item 7: "text" names an item above with a text of its own, in place of a text'
        self.assert_refused(SOURCE.replace("zh_CN     欢迎。\n", ""),
                            '3: item 1 needs a text in each of en_US, ja_JP, zh_CN, or "text" with the item that has it')
        self.assert_refused(SOURCE.replace("text      1", "text      7"), f"12: {own}")
        self.assert_refused(SOURCE + "en_US     More.\n", f"12: {own}")

    def test_refuses_places_that_no_window_has(self):
        self.assert_refused(SOURCE.replace("rows row 1", "rows row 9"),
                            '12: item 7: "rows" ends before that')
        self.assert_refused(SOURCE.replace("rows row 1", "point 5"), '12: item 7: "point" takes two numbers of pixels')

    def test_refuses_wrong_calls(self):
        run = self.run_it("4")
        self.assertEqual(run.returncode, 2)
        self.assertIn("lesson 4 has no source", run.stderr)
        run = self.run_it("--build", str(self.tree))
        self.assertEqual(run.returncode, 2)
        self.assertIn("lesson-position: build it", run.stderr)


if __name__ == "__main__":
    unittest.main()
