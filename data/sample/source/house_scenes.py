"""The scenes of the sample movie that are set inside the tower, and its title."""

import math
import random
import subprocess

from canvas import HEIGHT, WIDTH, Canvas

TITLE = "SKARHOLM LIGHT"
SUBTITLE = "A film of the Northern Coast\nFilm Unit, 1936"


class Title:
  """The opening title, a little unsteady in the gate, with dust and a light that turns behind it."""

  def __init__(self):
    self.card = Canvas(18)
    self.card.pixels[:] = subprocess.run(
      ["convert", "-size", "%dx%d" % (WIDTH, HEIGHT), "xc:gray7", "-gravity", "center",
       "-font", "DejaVu-Serif-Bold", "-fill", "gray93", "-pointsize", "54", "-annotate", "+0-50", TITLE,
       "-font", "DejaVu-Serif", "-pointsize", "28", "-annotate", "+0+70", SUBTITLE,
       "-colorspace", "Gray", "-depth", "8", "gray:-"], check=True, stdout=subprocess.PIPE).stdout

  def draw(self, time):
    canvas = self.card.copy()
    frame = round(time * 25)
    chance = random.Random(frame)
    shift = chance.choice((-1, 0, 0, 1)) * 2 * WIDTH  # two rows up or down
    if shift:
      canvas.pixels = canvas.pixels[shift:] + canvas.pixels[:shift]
    reach = 900 * math.cos(time * 1.1 - 1.6)
    for spread in (110, 60):
      canvas.polygon([(352, 620), (352 + reach, -60), (352 + reach + spread * 2, -60)], 200, 14)
    for edge in (20, 28):
      self.border(canvas, edge, 150)
    for _ in range(4):
      canvas.ellipse(chance.randrange(WIDTH), chance.randrange(HEIGHT), 3, 3, 220)
    if time < 0.6:
      canvas.rectangle(0, 0, WIDTH, HEIGHT, 0, round(99 - time * 160))
    return canvas

  @staticmethod
  def border(canvas, edge, grey):
    right, bottom = WIDTH - edge, HEIGHT - edge
    canvas.rectangle(edge, edge, right, edge + 3, grey)
    canvas.rectangle(edge, bottom - 3, right, bottom, grey)
    canvas.rectangle(edge, edge, edge + 3, bottom, grey)
    canvas.rectangle(right - 3, edge, right, bottom, grey)


class Stairs:
  """The keeper climbs the winding stair with his lantern; the wall sinks behind him."""

  COURSE = 36  # height of a row of stones

  def draw(self, time):
    canvas = Canvas(96)
    self.wall(canvas, time * 60)
    self.steps(canvas, time * 60)
    self.keeper(canvas, time)
    return canvas

  def wall(self, canvas, sunk):
    first = int(sunk // self.COURSE)
    for row in range(-1, HEIGHT // self.COURSE + 1):
      top = row * self.COURSE + sunk % self.COURSE
      canvas.rectangle(0, top, WIDTH, top + 3, 66)
      for stone in range(-1, 9):
        left = stone * 88 + (44 if (row - first) % 2 else 0)
        canvas.rectangle(left, top, left + 3, top + self.COURSE, 66)
    window = (sunk * 1.0 + 120) % 760 - 150  # a window comes by every thirteen seconds
    canvas.ellipse(570, window, 52, 56, 232)
    canvas.rectangle(518, window, 623, window + 100, 232)
    canvas.rectangle(567, window - 56, 574, window + 100, 70)
    canvas.rectangle(518, window + 40, 623, window + 46, 70)
    canvas.polygon([(518, window + 100), (623, window + 100), (380, window + 330),
                    (200, window + 330)], 240, 16)

  @staticmethod
  def steps(canvas, climbed):
    """A stair up to the right; each step moves on by its own size as the keeper takes it."""
    wide, high = 84, 52
    part = (climbed / 60 * 1.1) % 1
    for step in range(-2, 10):
      left = (step - part) * wide - 40
      top = 560 - (step - part) * high
      canvas.rectangle(left, top, WIDTH if step > 7 else left + wide + 2, top + 70, 44)
      canvas.rectangle(left, top, left + wide + 2, top + 8, 172)
      canvas.rectangle(left, top + 70, left + wide + 2, HEIGHT, 34)
      canvas.line(left + 40, top - 2, left + 40, top - 120, 5, 24)
    canvas.line(-60, 560 - 70, WIDTH + 40, 560 - 70 - (WIDTH + 100) * high / wide, 9, 24)

  @staticmethod
  def keeper(canvas, time):
    swing = math.sin(time * 2 * math.pi * 0.55)
    x, hip = 286, 272 + 6 * abs(swing)
    canvas.line(x, hip, x + 34 * swing, hip + 58, 24, 20)
    canvas.line(x + 34 * swing, hip + 58, x + 20 * swing - 6, hip + 112, 20, 20)
    canvas.line(x, hip, x - 34 * swing, hip + 58, 24, 28)
    canvas.line(x - 34 * swing, hip + 58, x - 44 * swing - 6, hip + 116, 20, 28)
    canvas.polygon([(x - 34, hip + 30), (x + 34, hip + 26), (x + 26, hip - 104), (x - 24, hip - 104)], 30)
    canvas.ellipse(x + 8, hip - 128, 24, 28, 196)
    canvas.rectangle(x - 18, hip - 158, x + 32, hip - 140, 18)
    canvas.line(x + 22, hip - 142, x + 46, hip - 140, 7, 18)
    canvas.polygon([(x - 8, hip - 116), (x + 30, hip - 118), (x + 24, hip - 92), (x, hip - 94)], 228)
    lampX, lampY = x + 92, hip - 30 + 8 * swing
    canvas.line(x + 6, hip - 88, lampX, lampY - 22, 18, 36)
    canvas.glow(lampX, lampY, 120 + 8 * math.sin(time * 13), 255, 12)
    canvas.rectangle(lampX - 11, lampY - 16, lampX + 12, lampY + 18, 250)
    canvas.rectangle(lampX - 14, lampY + 18, lampX + 15, lampY + 24, 20)
    canvas.polygon([(lampX - 14, lampY - 16), (lampX + 15, lampY - 16), (lampX, lampY - 32)], 20)


class Logbook:
  """The log under the lamp: a hand writes line by line, the clock's pendulum swings."""

  LINE_SECONDS = 2.2

  def __init__(self):
    self.room = Canvas(58)
    self.room.gradient(0, 330, 74, 40)
    self.room.gradient(330, HEIGHT, 96, 66)
    self.room.polygon([(120, 350), (356, 336), (356, 540), (60, 556)], 214)
    self.room.polygon([(356, 336), (590, 350), (652, 556), (356, 540)], 228)
    self.room.line(356, 336, 356, 540, 4, 120)
    for row in range(8):
      y = 362 + row * 24
      self.room.line(118 - row * 8, y + 8, 340, y, 2, 150)

  def draw(self, time):
    canvas = self.room.copy()
    self.clock(canvas, time)
    canvas.rectangle(596, 250, 628, 352, 40)
    canvas.glow(612, 214, 210 + 6 * math.sin(time * 11), 255, 9)
    canvas.ellipse(612, 214, 15, 34 + 4 * math.sin(time * 9), 255)
    canvas.polygon([(578, 262), (646, 262), (634, 288), (590, 288)], 26)
    hand = self.writing(canvas, time)
    self.hand(canvas, *hand)
    return canvas

  @staticmethod
  def clock(canvas, time):
    canvas.rectangle(96, 24, 236, 316, 26)
    canvas.ellipse(166, 96, 58, 58, 224)
    for hours, length in ((time / 60, 48), (time / 5, 40)):
      angle = 2 * math.pi * hours - 0.8
      canvas.line(166, 96, 166 + length * math.sin(angle), 96 - length * math.cos(angle), 6, 20)
    swing = 34 * math.sin(2 * math.pi * time / 2)
    canvas.line(166, 170, 166 + swing, 270, 4, 180)
    canvas.ellipse(166 + swing, 276, 18, 18, 214)

  def writing(self, canvas, time):
    """Draws what is written so far; gives the place of the pen."""
    chance = random.Random(19)
    lines = time / self.LINE_SECONDS
    x = y = 0
    for row in range(int(lines) + 1):
      done = min(1.0, lines - row)
      y, x = 372 + row * 26, 380
      stop = 380 + 200 * done
      while x < stop:
        step, lift = chance.uniform(5, 12), chance.uniform(-9, 3)
        if chance.random() > 0.16:
          canvas.line(x, y, x + step, y + lift, 4, 46)
        x += step
    return x, y

  @staticmethod
  def hand(canvas, x, y):
    shake = 4 * math.sin(x * 0.7)
    canvas.line(x, y, x + 62, y - 92 + shake, 7, 16)
    canvas.polygon([(x + 18, y + 6 + shake), (x + 92, y - 22), (x + 150, y + 40), (x + 80, y + 76)], 186)
    canvas.line(x + 20, y - 6 + shake, x + 78, y - 16, 20, 200)
    canvas.polygon([(x + 120, y + 2), (x + 360, y + 120), (x + 330, y + 230), (x + 74, y + 84)], 30)
