"""What scripts/check-includes finds in small projects made here, sound ones and broken ones."""

import importlib.machinery
import importlib.util
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "scripts" / "check-includes"


def load_script():
    sys.dont_write_bytecode = True
    loader = importlib.machinery.SourceFileLoader("check_includes", str(SCRIPT))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


def write_project(folder, files):
    for name, text in files.items():
        path = Path(folder, name)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")


class Project(unittest.TestCase):
    def check(self, files):
        with tempfile.TemporaryDirectory() as folder:
            write_project(folder, files)
            run = subprocess.run([sys.executable, SCRIPT, folder], capture_output=True, text=True, check=False)
        self.assertEqual(run.stderr, "")
        return run.returncode, run.stdout.splitlines()

    def assertSound(self, files):
        self.assertEqual(self.check(files), (0, []))

    def assertBroken(self, files, *complaints):
        status, lines = self.check(files)
        self.assertEqual(status, 1)
        self.assertEqual(lines, list(complaints))


class CheckIncludes(Project):
    def test_downward_includes_and_qt_are_sound(self):
        self.assertSound({
            "main.cpp": '#include "Tutorial/Manager.h"\n#include <QApplication>\n',
            "cpp/Tutorial/Manager.h": '#pragma once\n#include "Tutorial/overlay/Arrow.h"\n#include "tool/Log.h"\n',
            "cpp/Tutorial/Manager.cpp": '#include "Manager.h"\n#include "Manager.moc"\n#include "moc_Manager.cpp"\n',
            "cpp/Tutorial/overlay/Arrow.h": '#include "TutorialFont/Font.h"\n',
            "cpp/TutorialFont/Font.h": "#include <QFont>\n",
            "cpp/tool/Log.h": "",
            "practice/Editor.cpp": '#include "lesson/Step.h"\n#include "window/Window.h"\n#include "platform/Platform.h"\n',
            "lesson/Step.h": '#include "lesson/Words.h"\n',
            "lesson/Words.h": "",
            "platform/Platform.h": "#include <QString>\n",
            "practice/window/Window.h": "",
            "authoring/check.cpp": '#include "tool/Log.h"\n',
        })

    def test_an_upward_include_is_named_with_its_line(self):
        self.assertBroken(
            {"cpp/tool/Log.h": '#pragma once\n\n#include "Tutorial/Manager.h"\n', "cpp/Tutorial/Manager.h": ""},
            "cpp/tool/Log.h:3: cpp/tool may not include cpp/Tutorial/Manager.h (allowed: nothing but Qt)")

    def test_an_include_of_a_neighbour_is_named(self):
        self.assertBroken(
            {"cpp/Tutorial/link/Frame.cpp": '#include "../overlay/Arrow.h"\n', "cpp/Tutorial/overlay/Arrow.h": ""},
            "cpp/Tutorial/link/Frame.cpp:1: cpp/Tutorial/link may not include cpp/Tutorial/overlay/Arrow.h"
            " (allowed: cpp/tool)")

    def test_what_host_editors_know_of_lessons_and_the_companion_know_nothing_of_each_other(self):
        self.assertBroken(
            {"cpp/tool/Log.h": '#include "lesson/Step.h"\n', "lesson/Step.h": '#include "tool/Line.h"\n',
             "cpp/tool/Line.h": ""},
            "cpp/tool/Log.h:1: cpp/tool may not include lesson/Step.h (allowed: nothing but Qt)",
            "lesson/Step.h:1: lesson may not include cpp/tool/Line.h (allowed: nothing but Qt)")

    def test_a_room_below_may_not_include_the_room_around_it(self):
        self.assertBroken(
            {"cpp/Tutorial/preset/Patch.h": '#include "Tutorial/Manager.h"\n', "cpp/Tutorial/Manager.h": ""},
            "cpp/Tutorial/preset/Patch.h:1: cpp/Tutorial/preset may not include cpp/Tutorial/Manager.h"
            " (allowed: cpp/Tutorial/localisation, cpp/tool)")

    def test_the_practice_editor_may_not_include_the_companion(self):
        self.assertBroken(
            {"practice/Host.cpp": "#include <tool/Log.h>\n", "cpp/tool/Log.h": ""},
            "practice/Host.cpp:1: practice may not include cpp/tool/Log.h"
            f" (allowed: {', '.join(load_script().FLOORS['practice'])})")

    def test_the_rooms_of_the_practice_editor_have_floors(self):
        self.assertSound({
            "practice/main.cpp": '#include "pilot/Pilot.h"\n#include "window/Window.h"\n',
            "practice/pilot/Pilot.h": '#include "host/Session.h"\n',
            "practice/window/Window.h": '#include "window/control/List.h"\n#include "host/Session.h"\n',
            "practice/window/control/List.h": '#include "project/Files.h"\n',
            "practice/project/Files.h": '#include "lesson/description/Reader.h"\n',
            "host/Session.h": "",
            "lesson/description/Reader.h": "",
        })
        self.assertBroken(
            {"practice/project/Files.cpp": '#include "window/Window.h"\n',
             "practice/window/Window.h": '#include "Editor.h"\n',
             "practice/pilot/Pilot.cpp": '#include "window/Window.h"\n',
             "practice/Editor.h": ""},
            "practice/pilot/Pilot.cpp:1: practice/pilot may not include practice/window/Window.h "
            "(allowed: host, lesson)",
            "practice/project/Files.cpp:1: practice/project may not include practice/window/Window.h "
            "(allowed: lesson/description)",
            "practice/window/Window.h:1: practice/window may not include practice/Editor.h "
            "(allowed: practice/player/view/MessagePreview.h, "
            "practice/project, host, lesson)")

    def test_a_circle_is_named_once(self):
        self.assertBroken(
            {"cpp/tool/A.h": '#include "B.h"\n', "cpp/tool/B.h": '#include "tool/C.h"\n', "cpp/tool/C.h": '#include "A.h"\n'},
            "cpp/tool/C.h:1: includes in a circle: cpp/tool/A.h -> cpp/tool/B.h -> cpp/tool/C.h -> cpp/tool/A.h")

    def test_a_file_that_includes_itself_is_a_circle(self):
        self.assertBroken(
            {"cpp/tool/A.h": '#include "tool/A.h"\n'},
            "cpp/tool/A.h:1: includes in a circle: cpp/tool/A.h -> cpp/tool/A.h")

    def test_an_unknown_room_and_an_unknown_file_are_named(self):
        self.assertBroken(
            {"cpp/attic/Old.h": '#include "Gone.h"\n'},
            'cpp/attic/Old.h:1: "Gone.h" is no file of the project; put Qt and the system in <>',
            "cpp/attic/Old.h:1: stands in no room that scripts/check-includes knows")

    def test_includes_in_comments_do_not_count(self):
        self.assertSound({
            "cpp/tool/A.h": '// #include "tool/B.h"\n/*\n#include "tool/B.h"\n*/\nconst char *s = "/*";\n',
            "cpp/tool/B.h": '#include "tool/A.h"\n',
        })

    def test_a_folder_without_sources_is_not_sound(self):
        status, lines = self.check({})
        self.assertEqual(status, 1)
        self.assertEqual(len(lines), 1)


# Two units that need each other, though no file comes round to itself.
PAIR = {
    "cpp/tool/A.h": "",
    "cpp/tool/A.cpp": '#include "tool/A.h"\n#include "tool/B.h"\n',
    "cpp/tool/B.h": "#include <QString>\n#include \"tool/A.h\"\n",
}
PAIR_COMPLAINT = ("cpp/tool/A.cpp:2: 2 units in a knot: cpp/tool/A, cpp/tool/B"
                  " (by cpp/tool/A.cpp:2, cpp/tool/B.h:2)")


class Knots(Project):
    def complaints(self, files, known):
        with tempfile.TemporaryDirectory() as folder:
            write_project(folder, files)
            return load_script().complaints_of(Path(folder).resolve(), known)

    def test_a_header_and_its_source_are_one_unit(self):
        self.assertBroken(PAIR, PAIR_COMPLAINT)

    def test_two_sources_that_need_each_others_header_are_a_knot(self):
        self.assertBroken(
            {"cpp/tool/A.h": "", "cpp/tool/A.cpp": '#include "tool/B.h"\n',
             "cpp/tool/B.h": "", "cpp/tool/B.cpp": '#include "tool/A.h"\n'},
            "cpp/tool/A.cpp:1: 2 units in a knot: cpp/tool/A, cpp/tool/B (by cpp/tool/A.cpp:1, cpp/tool/B.cpp:1)")

    def test_a_knot_of_many_is_told_once_without_what_it_rests_on(self):
        self.assertBroken(
            {"cpp/tool/A.h": '#include "tool/Base.h"\n', "cpp/tool/A.cpp": '#include "tool/B.h"\n',
             "cpp/tool/B.h": '#include "tool/Base.h"\n', "cpp/tool/B.cpp": '#include "tool/C.h"\n',
             "cpp/tool/C.h": '#include "tool/A.h"\n', "cpp/tool/Base.h": "",
             "cpp/tool/User.cpp": '#include "tool/A.h"\n'},
            "cpp/tool/A.cpp:1: 3 units in a knot: cpp/tool/A, cpp/tool/B, cpp/tool/C"
            " (by cpp/tool/A.cpp:1, cpp/tool/B.cpp:1, cpp/tool/C.h:1)")

    def test_two_knots_are_told_apart(self):
        other = {name.replace("tool/", "TutorialFont/"): text.replace("tool/", "TutorialFont/")
                 for name, text in PAIR.items()}
        self.assertBroken({**PAIR, **other}, PAIR_COMPLAINT.replace("tool/", "TutorialFont/"), PAIR_COMPLAINT)

    def test_a_source_without_a_header_may_include_what_another_one_needs(self):
        self.assertSound({
            "cpp/tool/A.h": '#include "tool/B.h"\n', "cpp/tool/A.cpp": '#include "tool/A.h"\n',
            "cpp/tool/AMore.cpp": '#include "tool/A.h"\n', "cpp/tool/B.h": "",
            "cpp/tool/B.cpp": '#include "tool/B.h"\n',
        })

    def test_a_knot_that_is_known_is_sound(self):
        self.assertEqual(self.complaints(PAIR, [["cpp/tool/B", "cpp/tool/A"]]), [])

    def test_a_known_knot_that_is_gone_is_named(self):
        self.assertEqual(
            self.complaints({"cpp/tool/A.h": ""}, [["cpp/tool/A", "cpp/tool/B"]]),
            ["scripts/check-includes: a knot that is known is gone, take it out: cpp/tool/A, cpp/tool/B"])

    def test_a_known_knot_that_became_smaller_is_named(self):
        self.assertEqual(
            self.complaints(PAIR, [["cpp/tool/A", "cpp/tool/B", "cpp/tool/C"]]),
            [PAIR_COMPLAINT,
             "scripts/check-includes: a knot that is known is gone, take it out: cpp/tool/A, cpp/tool/B, cpp/tool/C"])

    def test_a_known_knot_that_grew_is_named(self):
        grown = {**PAIR, "cpp/tool/C.h": '#include "tool/A.h"\n', "cpp/tool/B.cpp": '#include "tool/C.h"\n'}
        self.assertEqual(len(self.complaints(grown, [["cpp/tool/A", "cpp/tool/B"]])), 2)

    def test_another_project_has_no_known_knots(self):
        module = load_script()
        self.assertEqual(module.KNOWN_KNOTS, [])
        module.KNOWN_KNOTS = [["cpp/tool/A", "cpp/tool/B"]]
        with tempfile.TemporaryDirectory() as folder:
            write_project(folder, {"cpp/tool/A.h": ""})
            self.assertEqual(module.main([folder]), 0)


if __name__ == "__main__":
    unittest.main()
