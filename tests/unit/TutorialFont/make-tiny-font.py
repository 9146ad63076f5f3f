#!/usr/bin/env python3
"""Writes TinyFont.ttf, a font of one letter whose family is not the name of its file."""
from pathlib import Path

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen

pen = TTGlyphPen(None)
pen.moveTo((100, 0))
pen.lineTo((100, 700))
pen.lineTo((500, 700))
pen.lineTo((500, 0))
pen.closePath()
box = pen.glyph()

font = FontBuilder(1000, isTTF=True)
font.setupGlyphOrder([".notdef", "A"])
font.setupCharacterMap({ord("A"): "A"})
font.setupGlyf({".notdef": box, "A": box})
font.setupHorizontalMetrics({".notdef": (600, 100), "A": (600, 100)})
font.setupHorizontalHeader(ascent=800, descent=-200)
font.setupNameTable({"familyName": "Tutorial Test Family", "styleName": "Regular"})
font.setupOS2(sTypoAscender=800, sTypoDescender=-200, usWinAscent=800, usWinDescent=200)
font.setupPost()
font.font["head"].created = font.font["head"].modified = 3600000000
font.font.recalcTimestamp = False
font.save(Path(__file__).with_name("TinyFont.ttf"))
