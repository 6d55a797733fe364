#!/usr/bin/python3
"""Makes the interface's symbol font, and the C++ rows that say which name has which glyph.

The table names a glyph of the icon font for each symbol, or one of our own as drawn/<id>. The font
made holds those glyphs alone, our own at U+100000 and up, under a family name of its own. The same
input gives the same bytes.
"""
import argparse
import logging
import math
import re
import xml.etree.ElementTree as ElementTree

from booleanOperations.booleanGlyph import BooleanGlyph
from fontTools import subset
from fontTools.misc.transform import Identity, Transform
from fontTools.pens.areaPen import AreaPen
from fontTools.pens.basePen import BasePen
from fontTools.pens.cu2quPen import Cu2QuPen
from fontTools.pens.pointPen import SegmentToPointPen
from fontTools.pens.recordingPen import DecomposingRecordingPen, RecordingPen
from fontTools.pens.roundingPen import RoundingPen
from fontTools.pens.transformPen import TransformPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.svgLib.path import parse_path
from fontTools.svgLib.path.shapes import PathBuilder
from fontTools.ttLib import TTFont

FAMILY = 'Tarn Loft Symbols'
FIRST_DRAWN = 0x100000
GRID = 24  # the side of a symbol's square in the drawings and in the icon font alike
FINE = 200  # the shapes are put together in a grid so much finer, as outlines are rounded there
SVG = '{http://www.w3.org/2000/svg}'


def read_table(path):
    """The rows (name, glyph) of the table, in its order."""
    rows = []
    with open(path, encoding='utf-8') as file:
        for line in file:
            words = line.split('#')[0].split()
            if words:
                name, glyph = words
                rows.append((name, glyph))
    names = [name for name, _ in rows]
    repeated = {name for name in names if names.count(name) > 1}
    if repeated:
        raise SystemExit(f'{path}: told twice: {", ".join(sorted(repeated))}')
    return rows


def svg_transform(text):
    """The transform of an SVG attribute; translate, scale and rotate are known."""
    result = Identity
    for function, arguments in re.findall(r'(\w+)\(([^)]*)\)', text or ''):
        values = [float(value) for value in re.split(r'[\s,]+', arguments.strip())]
        if function == 'translate':
            result = result.translate(*values)
        elif function == 'scale':
            result = result.scale(*values)
        elif function == 'rotate':
            centre = values[1:] or [0, 0]
            result = result.translate(*centre).rotate(math.radians(values[0]))
            result = result.translate(-centre[0], -centre[1])
        else:
            raise SystemExit(f'unknown transform: {function}')
    return result


class CubicPen(BasePen):
    """Passes an outline on with its quadratic curves as cubic ones."""

    def __init__(self, pen):
        super().__init__(None)
        self._moveTo, self._lineTo, self._curveToOne = pen.moveTo, pen.lineTo, pen.curveTo
        self._closePath, self._endPath = pen.closePath, pen.endPath


def contours_of(recording):
    contours = []
    for command in recording.value:
        if command[0] == 'moveTo':
            contours.append(RecordingPen())
        contours[-1].value.append(command)
    return contours


def area(recording):
    pen = AreaPen()
    recording.replay(pen)
    return pen.value


def outer_contours(recording):
    """The drawing without its holes: the contours that turn as the largest one does."""
    contours = contours_of(recording)
    largest = max((area(contour) for contour in contours), key=abs)
    result = RecordingPen()
    for contour in contours:
        if area(contour) * largest > 0:
            result.value += contour.value
    return result


def stroke(x1, y1, x2, y2, width, pen):
    """A line with round ends."""
    radius, length = width / 2, math.hypot(x2 - x1, y2 - y1)
    turned = Transform().translate(x1, y1).rotate(math.atan2(y2 - y1, x2 - x1))
    parse_path(f'M0 {-radius}H{length}A{radius} {radius} 0 0 1 {length} {radius}'
               f'H0A{radius} {radius} 0 0 1 0 {-radius}Z', TransformPen(pen, turned))


class Drawings:
    """Our own symbols, drawn in SVG from shapes and from the icon font's glyphs."""

    def __init__(self, path, font):
        self.glyphs = font.getGlyphSet()
        self.to_font = self._grid_to_font(font)
        self.symbols = {symbol.get('id'): symbol for symbol in ElementTree.parse(path).iter(SVG + 'symbol')}

    @staticmethod
    def _grid_to_font(font):
        scale = font['head'].unitsPerEm / GRID
        return Transform(scale, 0, 0, -scale, 0, font['hhea'].ascent)

    def outline(self, name):
        """The symbol's outline in the fine grid, without overlaps."""
        shape = BooleanGlyph()
        for element in self.symbols[name]:
            part = self._part(element)
            shape = shape.difference(part) if element.get('class') == 'cut' else shape.union(part)
        return shape

    def _part(self, element):
        recording = RecordingPen()
        tag = element.tag.removeprefix(SVG)
        pen = TransformPen(recording, svg_transform(element.get('transform')))
        if tag == 'use':
            self._draw_used(element, pen)
        elif tag == 'polyline':
            self._draw_strokes(element, pen)
        else:
            self._draw_shape(element, pen)
        part = BooleanGlyph()
        segments = SegmentToPointPen(part.getPointPen())
        recording.replay(CubicPen(TransformPen(segments, Identity.scale(FINE))))
        return part.removeOverlap()

    def _draw_used(self, element, pen):
        source, name = element.get('href').split('#')
        recording = DecomposingRecordingPen(self.glyphs)
        if source:
            self.glyphs[name].draw(TransformPen(recording, self.to_font.inverse()))
        else:
            self.outline(name).draw(TransformPen(recording, Identity.scale(1 / FINE)))
        if element.get('data-holes') == 'filled':
            recording = outer_contours(recording)
        recording.replay(pen)

    @staticmethod
    def _draw_strokes(element, pen):
        points = [tuple(map(float, point.split(','))) for point in element.get('points').split()]
        for start, end in zip(points, points[1:]):
            stroke(*start, *end, float(element.get('stroke-width')), pen)

    @staticmethod
    def _draw_shape(element, pen):
        builder = PathBuilder()
        element = ElementTree.Element(element.tag, {k: v for k, v in element.items() if k != 'transform'})
        if not builder.add_path_from_element(element):
            raise SystemExit(f'unknown shape: {element.tag}')
        for path in builder.paths:
            parse_path(path, pen)

    def glyph(self, name):
        """The symbol as a glyph of the font."""
        pen = TTGlyphPen(None)
        quadratic = Cu2QuPen(RoundingPen(pen), max_err=0.3, reverse_direction=False)
        self.outline(name).draw(TransformPen(quadratic, self.to_font.scale(1 / FINE)))
        return pen.glyph()


def add_glyph(font, name, code_point, glyph):
    font.setGlyphOrder(font.getGlyphOrder() + [name])
    font['glyf'][name] = glyph
    font['hmtx'][name] = (font['head'].unitsPerEm, 0)
    for table in font['cmap'].tables:
        if table.format == 12:
            table.cmap[code_point] = name


def assign_code_points(rows, font):
    """The code point of every glyph that the table names."""
    known = {glyph: code_point for code_point, glyph in font.getBestCmap().items()}
    used = sorted({glyph for _, glyph in rows})
    drawn = [glyph for glyph in used if glyph.startswith('drawn/')]
    missing = [glyph for glyph in used if glyph not in known and glyph not in drawn]
    if missing:
        raise SystemExit(f'not in the icon font: {", ".join(missing)}')
    known.update({glyph: FIRST_DRAWN + index for index, glyph in enumerate(drawn)})
    return {glyph: known[glyph] for glyph in used}


def add_drawn(font, drawings, code_points):
    glyphs = {name: drawings.glyph(name.removeprefix('drawn/'))
              for name in code_points if name.startswith('drawn/')}
    for name, glyph in glyphs.items():
        add_glyph(font, name, code_points[name], glyph)


def rename(font):
    """A family of our own, so that an icon font installed on the desktop isn't taken for it."""
    names = {1: FAMILY, 2: 'Regular', 3: FAMILY, 4: FAMILY, 6: FAMILY.replace(' ', '')}
    font['name'].names = []
    for name_id, text in names.items():
        font['name'].setName(text, name_id, 3, 1, 0x409)


def keep_only(font, code_points):
    options = subset.Options(layout_features=[], hinting=False, glyph_names=False, notdef_outline=True,
                             name_IDs=['*'], recalc_timestamp=False, drop_tables=['GSUB'])
    subsetter = subset.Subsetter(options)
    subsetter.populate(unicodes=code_points)
    subsetter.subset(font)


def correct_bearings(font):
    """Side bearings by the outlines: the icon font's go with bounds that are not the outlines'."""
    for name in font.getGlyphOrder():
        glyph = font['glyf'][name]
        glyph.recalcBounds(font['glyf'])
        font['hmtx'][name] = (font['hmtx'][name][0], glyph.xMin)


def write_rows(path, rows, code_points):
    with open(path, 'w', encoding='utf-8') as file:
        file.write('#include "controls/symbols/SymbolTable.h"\n\n'
                   '#include <algorithm>\n#include <functional>\n\n'
                   'namespace tarnloft::symbols {\nnamespace {\n\nconstexpr Symbol kSymbols[] = {\n')
        for name, glyph in sorted(rows):
            file.write(f'    {{u"{name}", U\'\\U{code_points[glyph]:08X}\', "{glyph}"}},\n')
        file.write('};\n\n'
                   'static_assert(std::ranges::adjacent_find(kSymbols, std::ranges::greater_equal{},\n'
                   '                                         &Symbol::name) == std::end(kSymbols),\n'
                   '              "sorted, and no name twice");\n\n'
                   '}  // namespace\n\n'
                   'std::span<const Symbol> table() { return kSymbols; }\n\n'
                   '}  // namespace tarnloft::symbols\n')


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    for name in ('table', 'drawings', 'icons', 'font', 'rows'):
        parser.add_argument(name)
    arguments = parser.parse_args()
    logging.getLogger('fontTools').setLevel(logging.ERROR)

    font = TTFont(arguments.icons, recalcTimestamp=False)
    rows = read_table(arguments.table)
    code_points = assign_code_points(rows, font)
    add_drawn(font, Drawings(arguments.drawings, font), code_points)
    rename(font)
    keep_only(font, code_points.values())
    correct_bearings(font)
    font.save(arguments.font)
    write_rows(arguments.rows, rows, code_points)


if __name__ == '__main__':
    main()
