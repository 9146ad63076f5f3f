"""What scripts/play-all has played, in which order, and what it makes of it: with a practice editor that only says it plays."""

import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TREE = Path(__file__).resolve().parents[2]

# It visits what it is told to, writes down how it was called, and leaves a project where it makes a new one.
EDITOR = f"""#!{sys.executable}
import json, os, pathlib, sys
sys.dont_write_bytecode = True
sys.path.insert(0, {str(TREE / "scripts")!r})
import lesson_ways
options = dict(word[2:].split("=", 1) for word in sys.argv[1:] if "=" in word)
room = pathlib.Path(__file__).parent
path = pathlib.Path(options["scenario"])
projects = pathlib.Path(options["projects"])
with open(room / "plays", "a") as plays:
    found = sorted(folder.name for folder in projects.iterdir())
    plays.write(json.dumps([path.stem, options["way"], found]) + "\\n")
items = lesson_ways.items_of(path.read_text())
for id in lesson_ways.visited(items, options["way"]):
    if str(id) not in os.environ.get("PASSED_BY", "").split():
        print(f"step 1/1 id {{id}} - click,", flush=True)
if "AGAIN" in os.environ:
    print("again: " + os.environ["AGAIN"], file=sys.stderr)
if options["way"] == "yes":
    (projects / path.stem / "data").mkdir(parents=True)
    (projects / path.stem / "data/MapInfos.json").write_text("[]")
sys.exit(int(os.environ.get("STATUS_OF_" + path.stem, "0")))
"""

STRAIGHT = [(1, "click,", -1, -1), (2, "click,", -1, -1)]
FORK = [(1, "yesNo", 2, 3), (2, "click,", 4, -1), (3, "click,", -1, -1), (4, "click,", -1, -1)]
TWO_FORKS = [(1, "yesNo", 2, 5), (2, "yesNo", 3, 4), (3, "click,", 5, -1), (4, "click,", -1, -1), (5, "click,", -1, -1)]


def scenario(items):
    return "var scenario = [\n" + ",\n".join(
        f'{{\n"id":{id},\n"condition":"{condition}",\n"jump":{jump},\n"jumpNo":{jump_no}\n}}'
        for id, condition, jump, jump_no in items) + "\n];"


class PlaysOfLessons(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="play-all-test.")
        self.addCleanup(folder.cleanup)
        self.room = Path(folder.name)
        (self.room / "lessons").mkdir()
        editor = self.room / "PracticeEditor"
        editor.write_text(EDITOR, encoding="utf-8")
        editor.chmod(0o755)

    def lesson(self, name, items):
        (self.room / f"lessons/{name}.js").write_text(scenario(items), encoding="utf-8")

    def play(self, *options, **environment):
        """What play-all said, its status, and the plays in their order: lesson, way, and the projects that it found."""
        played = subprocess.run(
            [str(TREE / "scripts/play-all"), "--scenarios", str(self.room / "lessons"), "--build", str(self.room),
             "--locale", "en_US", "--clock", "1", "--displays", "1", *options],
            env=dict(os.environ, **environment), capture_output=True, text=True, timeout=120, check=False)
        log = self.room / "plays"
        plays = [json.loads(line) for line in log.read_text().splitlines()] if log.exists() else []
        return played, plays

    def test_who_says_no_opens_what_the_lesson_before_has_left(self):
        self.lesson("TutorialStep1", STRAIGHT)
        self.lesson("TutorialStep2", FORK)
        played, plays = self.play()
        self.assertEqual(played.returncode, 0, played.stderr)
        self.assertEqual(plays, [["TutorialStep2", "yes", []], ["TutorialStep1", "yes", []],
                                 ["TutorialStep2", "no", ["TutorialStep1"]]])

    def test_a_press_that_was_made_again_is_told_and_breaks_nothing(self):
        self.lesson("TutorialStep1", STRAIGHT)
        played, _ = self.play(AGAIN="lesson 1: item 2")
        self.assertEqual(played.returncode, 0, played.stderr)
        self.assertIn("again: lesson 1: item 2\n1 of 1 plays", played.stdout)

    def test_what_a_broken_play_has_left_is_not_opened(self):
        self.lesson("TutorialStep1", STRAIGHT)
        self.lesson("TutorialStep2", FORK)
        played, plays = self.play(STATUS_OF_TutorialStep1="1")
        self.assertEqual(played.returncode, 1)
        self.assertEqual(plays[-1], ["TutorialStep2", "no", []])

    def test_projects_are_left_where_they_are_wanted(self):
        self.lesson("TutorialStep1", STRAIGHT)
        self.play("--projects", str(self.room / "left"))
        self.assertTrue((self.room / "left/TutorialStep1-en_US-yes/TutorialStep1/data/MapInfos.json").exists())

    def test_answers_are_mixed_where_an_item_is_only_found_so(self):
        self.lesson("Harbor", TWO_FORKS)
        played, plays = self.play()
        self.assertEqual(played.returncode, 0, played.stderr)
        self.assertEqual(sorted(play[1] for play in plays), ["no", "yes", "yes-no"])

    def test_an_item_that_no_play_visits_is_told(self):
        self.lesson("Harbor", FORK)
        played, _ = self.play(PASSED_BY="3")
        self.assertEqual(played.returncode, 1)
        self.assertIn("Harbor (en_US): on no way the pilot has visited item 3\n", played.stderr)

    def test_one_way_alone_need_not_visit_all(self):
        self.lesson("Harbor", FORK)
        played, plays = self.play("--way", "yes")
        self.assertEqual(played.returncode, 0, played.stderr)
        self.assertEqual(len(plays), 1)


if __name__ == "__main__":
    unittest.main()
