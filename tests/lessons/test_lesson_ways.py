"""The ways through lessons, by the answers to their questions."""

import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))
import lesson_ways  # noqa: E402


def scenario(*items):
    """A scenario file's text with items of an id, a condition, a jump and a jumpNo."""
    return "var scenario = [\n" + ",\n".join(
        f'    {{\n"id":{id},\n"name":"{id}",\n"condition":"{condition}",\n"jump":{jump},\n"jumpNo":{jump_no}\n    }}'
        for id, condition, jump, jump_no in items) + "\n];"


def items(*rows):
    return lesson_ways.items_of(scenario(*rows))


class WaysThroughALesson(unittest.TestCase):
    def test_without_a_question_there_is_one_way(self):
        straight = items((1, "click,", -1, -1), (2, "list,0", -1, -1))
        self.assertEqual(lesson_ways.visited(straight, "yes"), [1, 2])
        self.assertEqual(lesson_ways.ways_of(straight), ["yes"])

    def test_a_fork_is_taken_both_ways(self):
        fork = items((1, "yesNo", 2, 3), (2, "click,", 4, -1), (3, "click,", -1, -1), (4, "click,", -1, -1))
        self.assertEqual(lesson_ways.visited(fork, "yes"), [1, 2, 4])
        self.assertEqual(lesson_ways.visited(fork, "no"), [1, 3, 4])
        self.assertEqual(lesson_ways.ways_of(fork), ["yes", "no"])

    def test_an_item_behind_different_answers_gets_a_way_of_its_own(self):
        # Item 4 is on the way of who answers yes and then no.
        nested = items((1, "yesNo", 2, 5), (2, "yesNo", 3, 4), (3, "click,", 5, -1), (4, "click,", -1, -1),
                       (5, "click,", -1, -1))
        self.assertEqual(lesson_ways.ways_of(nested), ["yes", "no", "yes-no"])
        self.assertEqual(lesson_ways.visited(nested, "yes-no"), [1, 2, 4, 5])

    def test_a_question_that_comes_again_gets_the_same_answer(self):
        again = items((1, "yesNo", -1, 3), (2, "click,", 1, -1), (3, "click,", -1, -1))
        self.assertEqual(lesson_ways.visited(again, "no"), [1, 3])

    def test_an_item_that_no_answer_leads_to_gets_no_way(self):
        lost = items((1, "yesNo", 3, 3), (2, "click,", -1, -1), (3, "click,", -1, -1))
        self.assertEqual(lesson_ways.ways_of(lost), ["yes", "no"])

    def test_the_lessons_of_the_tree_are_reached_everywhere(self):
        names = lesson_ways.lesson_names()
        self.assertEqual(len(names), len(set(names)))
        for name in names:
            path = lesson_ways.LESSONS / f"{name}.js"
            if not path.exists():
                continue
            of_lesson = lesson_ways.items_of(path.read_text(encoding="utf-8-sig"))
            found = set()
            for way in lesson_ways.ways_of(of_lesson):
                found |= set(lesson_ways.visited(of_lesson, way))
            self.assertEqual({item.id for item in of_lesson} - found, set(), name)


if __name__ == "__main__":
    unittest.main()
