"""A picture of a screen, and what the tests look for in it."""

import struct
import zlib

PAPER = (255, 255, 224)  # the design view's background


class Screen:
    """What a screen showed at one moment. Colours are (red, green, blue); a pixel's bytes begin with blue."""

    def __init__(self, dump):
        """Reads a picture in the format of the program xwd."""
        header = struct.unpack(">25I", dump[:100])
        self._width, self._height, self._depth, stride = header[4], header[5], header[11] // 8, header[12]
        start = header[0] + header[19] * 12
        self._rows = [dump[begin:begin + self._width * self._depth]
                      for begin in range(start, start + self._height * stride, stride)]

    def __eq__(self, other):
        return isinstance(other, Screen) and self._rows == other._rows

    def paper(self):
        """The design view as (left, top, width, height); None if it can't be seen."""
        ink = bytes(reversed(PAPER))
        found = [(y, row) for y, row in enumerate(self._rows) if row.count(ink) > 50]
        if not found:
            return None
        spans = [self._span(row, ink) for _, row in found]
        lefts, rights = [left for left, _ in spans], [right for _, right in spans]
        return (min(lefts), found[0][0], max(rights) - min(lefts) + 1, found[-1][0] - found[0][0] + 1)

    def _span(self, row, ink):
        """The first and the last pixel of a row in a colour; what only spans two pixels is none."""
        first = row.find(ink)
        while first % self._depth:
            first = row.find(ink, first + 1)
        last = row.rfind(ink)
        while last % self._depth:
            last = row.rfind(ink, 0, last + len(ink) - 1)
        return first // self._depth, last // self._depth

    def pixels(self, area):
        """The bytes of an area, row by row."""
        left, top, width, height = area
        begin, end = left * self._depth, (left + width) * self._depth
        return b"".join(row[begin:end] for row in self._rows[top:top + height])

    def near(self, area, colour, reach=96):
        """Number of pixels in an area whose red, green and blue are all near a colour's."""
        pixels = self.pixels(area)
        both = -1
        for value, offset in zip(colour, (2, 1, 0)):
            near = bytes(abs(i - value) <= reach for i in range(256))  # 1 where a channel is near
            both &= int.from_bytes(pixels[offset::self._depth].translate(near), "little")
        return both.bit_count()

    def save(self, path):
        """Writes the picture as a PNG."""
        lines = bytearray()
        for row in self._rows:
            line = bytearray(self._width * 3)
            for channel in range(3):
                line[channel::3] = row[2 - channel::self._depth]
            lines += b"\0" + line
        header = struct.pack(">IIBBBBB", self._width, self._height, 8, 2, 0, 0, 0)
        path.write_bytes(b"\x89PNG\r\n\x1a\n" + b"".join(
            struct.pack(">I", len(body)) + name + body + struct.pack(">I", zlib.crc32(name + body))
            for name, body in ((b"IHDR", header), (b"IDAT", zlib.compress(bytes(lines))), (b"IEND", b""))))
