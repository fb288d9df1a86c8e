"""A grey picture that is drawn by whole spans of a row, fast enough for a movie in plain Python.

The picture is drawn at twice the movie's size and scaled down by the encoder, which smooths edges.
Coordinates are pixels of the large picture, y downwards; shapes may reach over the borders.
"""

import math
from functools import lru_cache

WIDTH, HEIGHT = 704, 576


@lru_cache(maxsize=None)
def blendTable(grey, percent):
  """A table that takes each grey the given percentage of the way to another."""
  return bytes(round(old + (grey - old) * percent / 100) for old in range(256))


class Canvas:
  """One grey picture; the shapes take a grey (0 to 255) and how much they cover (0 to 100 percent)."""

  def __init__(self, grey=0):
    self.pixels = bytearray([grey]) * (WIDTH * HEIGHT)

  def copy(self):
    other = Canvas.__new__(Canvas)
    other.pixels = bytearray(self.pixels)
    return other

  def span(self, y, left, right, grey, cover=100):
    """Paints one row from left (inclusive) to right (exclusive)."""
    left, right = max(0, int(left)), min(WIDTH, int(right))
    if right <= left or not 0 <= y < HEIGHT:
      return
    start, stop = y * WIDTH + left, y * WIDTH + right
    if cover >= 100:
      self.pixels[start:stop] = bytes((grey,)) * (right - left)
    else:
      self.pixels[start:stop] = self.pixels[start:stop].translate(blendTable(grey, cover))

  def rectangle(self, left, top, right, bottom, grey, cover=100):
    for y in range(max(0, int(top)), min(HEIGHT, int(bottom))):
      self.span(y, left, right, grey, cover)

  def gradient(self, top, bottom, first, last):
    """Paints the rows from top to bottom, going evenly from the first grey to the last."""
    for y in range(max(0, top), min(HEIGHT, bottom)):
      self.span(y, 0, WIDTH, round(first + (last - first) * (y - top) / (bottom - top)))

  def ellipse(self, x, y, radiusX, radiusY, grey, cover=100):
    for row in range(math.ceil(y - radiusY), math.floor(y + radiusY) + 1):
      half = radiusX * math.sqrt(max(0.0, 1 - ((row - y) / radiusY) ** 2))
      self.span(row, round(x - half), round(x + half), grey, cover)

  def polygon(self, points, grey, cover=100):
    """Fills a closed polygon by the even-odd rule."""
    crossings = {}
    for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
      if y1 > y2:
        x1, y1, x2, y2 = x2, y2, x1, y1
      for y in range(max(0, math.ceil(y1)), min(HEIGHT, math.ceil(y2))):
        crossings.setdefault(y, []).append(x1 + (x2 - x1) * (y - y1) / (y2 - y1))
    for y, xs in crossings.items():
      xs.sort()
      for left, right in zip(xs[::2], xs[1::2]):
        self.span(y, round(left), round(right), grey, cover)

  def line(self, x1, y1, x2, y2, width, grey, cover=100):
    length = math.hypot(x2 - x1, y2 - y1) or 1
    dx, dy = (y2 - y1) / length * width / 2, (x1 - x2) / length * width / 2
    self.polygon([(x1 + dx, y1 + dy), (x2 + dx, y2 + dy), (x2 - dx, y2 - dy), (x1 - dx, y1 - dy)],
                 grey, cover)

  def glow(self, x, y, radius, grey, cover):
    """A soft light: rings that lie over one another, each covering a little."""
    rings = 12
    for ring in range(rings, 0, -1):
      self.ellipse(x, y, radius * ring / rings, radius * ring / rings, grey, cover * 4 // rings)

  def waves(self, level, height, length, phase, grey, cover=100):
    """Water up to a wavy line around the level: two sines of different length."""
    points = []
    for x in range(0, WIDTH + 16, 16):
      angle = 2 * math.pi * x / length
      points.append((x, level + height * (0.7 * math.sin(angle + phase)
                                          + 0.3 * math.sin(2.3 * angle - 1.7 * phase))))
    lowest = math.ceil(max(y for _, y in points))
    self.polygon(points + [(WIDTH, lowest), (0, lowest)], grey, cover)
    self.rectangle(0, lowest, WIDTH, HEIGHT, grey, cover)
