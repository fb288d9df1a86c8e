"""The scenes of the sample movie that are set at sea. Each takes the seconds since its start."""

import math
import random

from canvas import HEIGHT, WIDTH, Canvas
from props import cloud, gull, lighthouse, rock, ship


class Dawn:
  """A rising sun behind the rock, a boat that crosses, gulls."""

  def __init__(self):
    self.sky = Canvas()
    self.sky.gradient(0, 360, 110, 235)

  def draw(self, time):
    canvas = self.sky.copy()
    sun = 380 - time * 17
    canvas.glow(520, sun, 130, 250, 14)
    canvas.ellipse(520, sun, 42, 42, 255)
    for start, y, size, speed in ((40, 90, 90, 9), (420, 60, 70, 6), (640, 150, 60, 12)):
      cloud(canvas, (start + time * speed) % (WIDTH + 240) - 120, y, size, 250, 60)
    canvas.waves(352, 4, 310, time * 0.9, 150)
    rock(canvas, 210, 372, 330, 62)
    lighthouse(canvas, 205, 330, 250, 226, 84, 250)
    canvas.waves(392, 6, 240, -time * 1.3, 122)
    self.boat(canvas, 760 - time * 38, 420 + 4 * math.sin(time * 2.1))
    canvas.waves(436, 9, 330, time * 1.7, 92)
    canvas.waves(500, 12, 420, -time * 2.0 + 1, 66)
    for index in range(4):
      x = (time * (46 + 9 * index) + index * 190) % (WIDTH + 80) - 40
      gull(canvas, x, 130 + 34 * index + 14 * math.sin(time + index), 17, time + index, 46)
    return canvas

  @staticmethod
  def boat(canvas, x, y):
    canvas.polygon([(x - 46, y), (x + 46, y), (x + 32, y + 26), (x - 36, y + 26)], 40)
    canvas.line(x, y, x, y - 96, 4, 40)
    canvas.polygon([(x - 6, y - 92), (x - 6, y - 8), (x - 58, y - 8)], 236)
    canvas.polygon([(x + 6, y - 84), (x + 6, y - 8), (x + 40, y - 8)], 214)


class Gale:
  """High seas that break over the rock, rain, two strokes of lightning."""

  FLASHES = (3.2, 9.4)

  def __init__(self):
    self.sky = Canvas()
    self.sky.gradient(0, HEIGHT, 40, 96)

  def draw(self, time):
    canvas = self.sky.copy()
    for index in range(5):
      x = (index * 190 + time * 70) % (WIDTH + 400) - 200
      cloud(canvas, x, 60 + 24 * (index % 3), 150, 26, 55)
    if any(0 <= time - flash < 0.32 and int((time - flash) * 12) % 2 == 0 for flash in self.FLASHES):
      canvas.rectangle(0, 0, WIDTH, HEIGHT, 255, 55)
      self.lightning(canvas, time)
    canvas.waves(330, 22, 380, time * 2.1, 84)
    rock(canvas, 440, 380, 300, 28)
    lighthouse(canvas, 436, 345, 240, 176, 34, 255 if int(time * 2) % 5 < 2 else 120)
    self.spray(canvas, time)
    canvas.waves(400, 34, 460, -time * 2.6, 66)
    canvas.waves(398, 34, 460, -time * 2.6, 190, 12)
    canvas.waves(470, 40, 560, time * 3.0 + 2, 48)
    canvas.waves(530, 30, 420, -time * 3.4, 30)
    self.rain(canvas, time)
    return canvas

  @staticmethod
  def lightning(canvas, time):
    chance = random.Random(int(time))
    x, y = 120 + chance.random() * 120, 0
    while y < 330:
      nextX, nextY = x + chance.uniform(-34, 40), y + chance.uniform(30, 60)
      canvas.line(x, y, nextX, nextY, 5, 255)
      x, y = nextX, nextY

  @staticmethod
  def spray(canvas, time):
    """Every 3.5 seconds a sea breaks: drops that fly up beside the tower and fall."""
    age = time % 3.5
    chance = random.Random(int(time / 3.5))
    for _ in range(46):
      speedX, speedY, size = chance.uniform(-40, 190), chance.uniform(150, 420), chance.uniform(3, 11)
      y = 372 - speedY * age + 210 * age * age
      if y < 400:
        canvas.ellipse(330 + speedX * age, y, size, size, 226, 70)

  @staticmethod
  def rain(canvas, time):
    chance = random.Random(7)
    for _ in range(70):
      x = (chance.random() * 900 - time * 260) % 900 - 60
      y = (chance.random() * 700 + time * 900) % 700 - 60
      canvas.line(x, y, x - 12, y + 40, 2, 200, 45)


class Night:
  """The turning light under stars, a steamer that passes; it fades out at the end."""

  TURN = 7.0  # seconds for a turn: two beams close together give two flashes and a pause
  LENGTH, FADE = 14.0, 1.2

  def __init__(self):
    self.sky = Canvas()
    self.sky.gradient(0, 400, 14, 62)
    self.sky.gradient(400, HEIGHT, 44, 20)
    chance = random.Random(112)
    self.stars = [(chance.randrange(WIDTH), chance.randrange(330), chance.random() * 6.3)
                  for _ in range(70)]

  def draw(self, time):
    canvas = self.sky.copy()
    for x, y, phase in self.stars:
      canvas.rectangle(x, y, x + 3, y + 3, round(150 + 90 * math.sin(time * 3 + phase)))
    canvas.ellipse(600, 90, 34, 34, 235)
    canvas.ellipse(586, 84, 32, 32, 24)
    self.steamer(canvas, time)
    self.beams(canvas, time)
    rock(canvas, 270, 420, 340, 10)
    lamp = lighthouse(canvas, 264, 376, 270, 70, 14, 250)
    self.flash(canvas, lamp, time)
    canvas.waves(424, 4, 260, time * 0.8, 40)
    canvas.waves(470, 5, 340, -time * 1.0, 30)
    for stripe in range(9):
      half = 46 - stripe * 3 + 14 * math.sin(time * 2.2 + stripe)
      canvas.rectangle(264 - half, 440 + stripe * 14, 264 + half, 444 + stripe * 14, 230, 40)
    if time > self.LENGTH - self.FADE:
      cover = round(100 * (time - self.LENGTH + self.FADE) / self.FADE)
      canvas.rectangle(0, 0, WIDTH, HEIGHT, 0, min(99, cover))
    return canvas

  def angles(self, time):
    turn = 2 * math.pi * time / self.TURN
    return turn, turn + 0.9

  def beams(self, canvas, time):
    """A beam is long when it points sideways and a mere glow when it points at the viewer."""
    for angle in self.angles(time):
      reach = 680 * math.cos(angle)
      spread = 16 + 60 * abs(math.cos(angle))
      for part in (1.0, 0.8, 0.6, 0.4):  # shorter ones inside, so that it fades outwards
        canvas.polygon([(264, 141), (264 + reach * part, 141 - spread * part),
                        (264 + reach * part, 141 + spread * part)], 250, 12)

  def flash(self, canvas, lamp, time):
    for angle in self.angles(time):
      strength = max(0.0, math.sin(angle)) ** 8
      if strength > 0.05:
        canvas.glow(*lamp, 40 + 130 * strength, 255, round(8 + 18 * strength))

  @staticmethod
  def steamer(canvas, time):
    x = -60 + time * 52
    for puff in range(7):
      canvas.ellipse(x - 6 - puff * 20, 346 - puff * 8 + 4 * math.sin(time * 2 + puff), 10 + 3 * puff,
                     7 + 2 * puff, 66, 40)
    ship(canvas, x, 420, 62, 6, 225)
