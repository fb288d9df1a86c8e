"""The sound of the sample movie: commentary by espeak-ng, with the exact time of each word, over sea,
wind, clock and fog horn that are computed here."""

import array
import ctypes
import math
import random

import story

RATE = 22050  # samples a second, what espeak-ng gives
WORDS_PER_MINUTE = 135
QUIET = 250  # below this a sample counts as silence at a word's end


class SpeechEvent(ctypes.Structure):
  """espeak_EVENT of espeak-ng/speak_lib.h."""
  _fields_ = [("type", ctypes.c_int), ("identifier", ctypes.c_uint), ("textPosition", ctypes.c_int),
              ("length", ctypes.c_int), ("milliseconds", ctypes.c_int), ("sample", ctypes.c_int),
              ("userData", ctypes.c_void_p), ("id", ctypes.c_char * 8)]


SYNCHRONOUS, BY_CHARACTER, UTF8, SPEED, LAST_EVENT, WORD_EVENT = 2, 1, 1, 1, 0, 1
SpeechCallback = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.POINTER(ctypes.c_short), ctypes.c_int,
                                  ctypes.POINTER(SpeechEvent))


class Speaker:
  """espeak-ng's library, used instead of its command since only the library tells word times."""

  def __init__(self):
    self.library = ctypes.CDLL("libespeak-ng.so.1")
    if self.library.espeak_Initialize(SYNCHRONOUS, 0, None, 0) != RATE:
      raise RuntimeError("espeak-ng does not give %d samples a second" % RATE)
    if self.library.espeak_SetVoiceByName(b"en-gb-x-rp") != 0:
      raise RuntimeError("espeak-ng lacks the voice en-gb-x-rp")
    self.library.espeak_SetParameter(SPEED, WORDS_PER_MINUTE, 0)
    self.callback = SpeechCallback(self.receive)  # kept, the library holds only its address
    self.library.espeak_SetSynthCallback(self.callback)
    self.samples, self.starts = array.array("h"), []

  def receive(self, wave, count, events):
    if count > 0:
      self.samples.extend(wave[:count])
    index = 0
    while events[index].type != LAST_EVENT:
      if events[index].type == WORD_EVENT and events[index].length > 0:  # 0 comes at a comma
        self.starts.append(events[index].sample)
      index += 1
    return 0

  def say(self, text):
    """The samples of a phrase and, for each of its words, first and last sample."""
    self.samples, self.starts = array.array("h"), []
    data = text.encode("utf-8")
    self.library.espeak_Synth(data, len(data) + 1, 0, BY_CHARACTER, 0, UTF8, None, None)
    self.library.espeak_Synchronize()
    if len(self.starts) != len(text.split()):
      raise RuntimeError("espeak-ng ran words together in: " + text)
    ends = self.starts[1:] + [len(self.samples)]
    return self.samples, [(start, self.lastLoud(start, end)) for start, end in zip(self.starts, ends)]

  def lastLoud(self, start, end):
    while end > start + 1 and abs(self.samples[end - 1]) < QUIET:
      end -= 1
    return end


def speak(track):
  """Mixes the commentary into the track; gives (start ms, end ms, word) in order of time."""
  speaker, words = Speaker(), []
  for start, text in story.COMMENTARY:
    samples, spans = speaker.say(text)
    first = round(start * RATE)
    for index, sample in enumerate(samples):
      track[first + index] += sample * 0.75
    for word, (begin, end) in zip(text.split(), spans):
      words.append((round((first + begin) * 1000 / RATE), round((first + end) * 1000 / RATE), word))
  return words


# How loud the sea and the wind are in each scene.
LEVELS = {"title": (500, 0), "dawn": (800, 150), "stairs": (180, 100), "logbook": (220, 120),
          "gale": (1700, 1900), "night": (600, 60)}


def noises(track):
  """Adds sea and wind: noise through low-pass filters, swelling slowly."""
  chance = random.Random(1936)
  sea = wind = 0.0
  for name, start, end in story.SCENES:
    seaLevel, windLevel = LEVELS[name]
    for index in range(round(start * RATE), round(end * RATE)):
      time = index / RATE
      white = chance.random() * 2 - 1
      sea += (white - sea) * 0.06
      wind += (white - wind) * (0.14 + 0.08 * math.sin(time * 0.9))
      swell = 0.6 + 0.4 * math.sin(time * 1.3)
      gust = 0.6 + 0.4 * math.sin(time * 0.7 + 1)
      track[index] += 5 * sea * seaLevel * swell + 2 * wind * windLevel * gust


def tone(track, start, length, frequency, loudness, fade):
  """Adds a tone with its first overtones, going up and down over `fade` seconds."""
  for index in range(round(length * RATE)):
    time = index / RATE
    shape = min(1.0, time / fade, (length - time) / fade) * loudness
    angle = 2 * math.pi * frequency * time
    track[round(start * RATE) + index] += shape * (math.sin(angle) + 0.4 * math.sin(2 * angle)
                                                   + 0.2 * math.sin(3 * angle))


def signals(track):
  """Adds the organ of the title, the clock of the watch room and the fog horn of the night."""
  for note in (130.8, 164.8, 196.0):
    tone(track, 0.2, 3.7, note, 900, 0.8)
  for tick in range(22):
    tone(track, 25.0 + tick / 2, 0.02, 1800 if tick % 2 else 1500, 1500, 0.005)
  for horn in (52.9, 61.6):
    tone(track, horn, 1.4, 98.0, 1800, 0.3)


def build():
  """The whole track as 16-bit samples, and the words with their times in milliseconds."""
  track = [0.0] * round(story.DURATION * RATE)
  words = speak(track)
  noises(track)
  signals(track)
  return array.array("h", (max(-32000, min(32000, round(sample))) for sample in track)), words
