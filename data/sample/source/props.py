"""Things that stand in more than one scene of the sample movie."""

import math


def lighthouse(canvas, x, foot, size, body, dark, lamp):
  """The tower with its gallery and lantern; x is its middle, size its height in pixels.

  Gives the middle of the lamp.
  """
  wide, narrow, top = size * 0.13, size * 0.085, foot - size * 0.78
  canvas.polygon([(x - wide, foot), (x + wide, foot), (x + narrow, top), (x - narrow, top)], body)
  for band in (0.2, 0.6):  # two dark bands around the tower
    low, high = foot - size * 0.78 * band, foot - size * 0.78 * (band + 0.2)
    lowHalf, highHalf = (wide + (narrow - wide) * part for part in (band, band + 0.2))
    canvas.polygon([(x - lowHalf, low), (x + lowHalf, low), (x + highHalf, high),
                    (x - highHalf, high)], dark)
  canvas.rectangle(x - narrow * 1.5, top - size * 0.03, x + narrow * 1.5, top, dark)
  canvas.rectangle(x - narrow * 0.8, top - size * 0.15, x + narrow * 0.8, top - size * 0.03, lamp)
  for bar in (-0.8, 0.0, 0.75):
    canvas.rectangle(x + narrow * bar - 1, top - size * 0.15, x + narrow * bar + 2, top, dark)
  canvas.polygon([(x - narrow * 1.1, top - size * 0.15), (x + narrow * 1.1, top - size * 0.15),
                  (x, top - size * 0.23)], dark)
  return x, top - size * 0.09


def rock(canvas, x, level, width, grey):
  half = width / 2
  canvas.polygon([(x - half, level + 60), (x - half * 0.8, level - 10), (x - half * 0.5, level - 26),
                  (x - half * 0.2, level - 48), (x + half * 0.35, level - 44),
                  (x + half * 0.6, level - 18), (x + half * 0.9, level), (x + half, level + 60)], grey)


def gull(canvas, x, y, span, time, grey):
  lift = span * 0.35 * math.sin(time * 9)
  canvas.line(x, y, x - span, y - lift, 4, grey)
  canvas.line(x, y, x + span, y - lift, 4, grey)


def cloud(canvas, x, y, size, grey, cover):
  for dx, dy, part in ((-0.8, 0.1, 0.5), (-0.3, -0.1, 0.7), (0.3, -0.05, 0.8), (0.9, 0.12, 0.5)):
    canvas.ellipse(x + dx * size, y + dy * size, size * part, size * part * 0.42, grey, cover)


def ship(canvas, x, level, size, hull, light):
  """A steamer seen from the side, its smoke left to the scene."""
  canvas.polygon([(x - size, level - size * 0.25), (x + size * 1.1, level - size * 0.3),
                  (x + size * 0.9, level + 6), (x - size * 0.9, level + 6)], hull)
  canvas.rectangle(x - size * 0.5, level - size * 0.5, x + size * 0.4, level - size * 0.25, hull)
  canvas.rectangle(x - size * 0.15, level - size * 0.85, x + size * 0.05, level - size * 0.5, hull)
  for port in range(6):
    left = x - size * 0.7 + port * size * 0.25
    canvas.rectangle(left, level - size * 0.18, left + 5, level - size * 0.18 + 5, light)
