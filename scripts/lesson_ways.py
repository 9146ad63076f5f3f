"""The lessons that there are, and the ways through each, as the pilot takes them by its answers to their questions."""

import itertools
import pathlib
import re

TREE = pathlib.Path(__file__).resolve().parent.parent
LESSONS = TREE / "resource/qml/Tutorial"
YES_NO = ["yes", "no"]
MOST_QUESTIONS = 8  # on one way


def lesson_names(folder=LESSONS):
    """The names of all lessons in their order, written or not."""
    text = (folder / "TutorialList.js").read_text(encoding="utf-8-sig")
    return re.findall(r'"filename":"(\w+)"', text)


class Item:
    def __init__(self, text):
        self.id = int(re.search(r'"id":(\d+)', text).group(1))
        self.asks = '"condition":"yesNo"' in text
        self.jump = int(re.search(r'"jump":(-?\d+)', text).group(1))
        self.jump_no = int(re.search(r'"jumpNo":(-?\d+)', text).group(1))


def items_of(scenario):
    """The items in the text of a scenario file."""
    blocks = re.split(r'(?="id":)', scenario)[1:]
    return [Item(block) for block in blocks]


def visited(items, way):
    """The ids on the way that is taken with these answers, such as "yes-no", in their order."""
    answers = way.split("-")
    places = {item.id: place for place, item in enumerate(items)}
    place, questions, ids = 0, [], []
    while place < len(items) and len(ids) < 10 * len(items):
        item = items[place]
        ids.append(item.id)
        to = item.jump
        if item.asks:
            if item.id not in questions:
                questions.append(item.id)
            if answers[min(questions.index(item.id), len(answers) - 1)] == "no":
                to = item.jump_no
        place = places.get(to, len(items)) if to >= 0 else place + 1
    return ids


def ways_of(items):
    """All answers yes; where something is asked, also all no, and more until each item is on one of the ways that can
    be."""
    asked = sum(item.asks for item in items)
    if not asked:
        return YES_NO[:1]
    ways = list(YES_NO)
    missing = {item.id for item in items}
    for way in ways:
        missing -= set(visited(items, way))
    for count in range(2, min(asked, MOST_QUESTIONS) + 1):
        for answers in itertools.product(YES_NO, repeat=count):
            way = "-".join(answers)
            found = missing & set(visited(items, way)) if missing else set()
            if found:
                ways.append(way)
                missing -= found
    return ways
