"""Picture, sound and text of the sample movie, and their segments. Spans are in milliseconds."""

import story
from catalogue import LENGTH, path

PICTURE = "lighthouse_files/lighthouse_mediaobject%d.bmp"
DESCRIBED = {"DescribedBy": "de Wit, Hanneke", "DescribedOn": "2011-10-24"}
OF_VERSION = {"VersionGUID": path("Version", 1), "ManifestedBy": [path("Media", 1), path("Media", 2)]}
WHOLE = (0, LENGTH, "")

MAIN_VIDEO = {
  **OF_VERSION, **DESCRIBED,
  "Title": "Picture of Skarholm Light",
  "Time": WHOLE,
  "Description": "The rock at dawn, the keeper at work in the tower, a gale, the light at night.",
  "Keywords": ["Lighthouse", "Sea", "Keeper"],
  "Usable": True,
  "FrameRate": story.FRAME_RATE,
  "SegmentKind": "Programme item",
  "Colour": "Tinted",
  "HasAudio": path("Audio", 1),
  "HasVideoTranscript": path("Transcript", 1),
}

# Each segment: its number, that of its parent and of the next segment (0 for none), its span, the time
# of its picture, and its own fields.
VIDEO_SEGMENTS = [
  (2, 1, 3, (0, 14000), 9200, {
    "Title": "Skarholm at dawn",
    "Description": "Opening title. Then the rock with the tower from the sea; the sun rises, a sailing boat crosses.",
    "Keywords": ["Sunrise", "Sailing boats", "Gulls"], "Places": ["Skarholm"], "Usable": True,
    "SegmentKind": "Sequence", "ShotSize": "Extreme long shot", "CameraMovement": "Static", "Exterior": True,
    "FilmedOn": "1935-09-03", "ObjectsShown": ["Lighthouse", "Sailing boat"],
    "VisibleText": "SKARHOLM LIGHT. A film of the Northern Coast Film Unit, 1936"}),
  (3, 1, 6, (14000, 36000), 25400, {
    "Title": "The keeper's day",
    "Description": "Inside the tower: the climb to the lamp and the hour at the log.",
    "Keywords": ["Daily work", "Tower"], "Persons": ["Holm, Anders"], "Usable": True,
    "SegmentKind": "Sequence", "Exterior": False, "FilmedOn": "1935-09-05"}),
  (4, 3, 5, (14000, 25000), 20000, {
    "Title": "One hundred and twelve steps",
    "Description": "The keeper climbs the winding stair with a lantern in his hand.",
    "Keywords": ["Stairs", "Lantern"], "Persons": ["Holm, Anders"], "Usable": True,
    "SegmentKind": "Scene", "ShotNumber": 7, "ShotSize": "Medium long shot",
    "CameraMovement": "Tracking shot", "Exterior": False, "FilmedOn": "1935-09-05",
    "ObjectsShown": ["Lantern", "Stair", "Window"]}),
  (5, 3, 0, (25000, 36000), 34000, {
    "Title": "The log",
    "Description": "A hand writes the log under a petroleum lamp; behind it the pendulum of the clock swings.",
    "Keywords": ["Writing", "Logbook"], "Persons": ["Holm, Anders"], "Usable": True,
    "SegmentKind": "Scene", "ShotNumber": 11, "ShotSize": "Close-up", "CameraMovement": "Static",
    "Exterior": False, "FilmedOn": "1935-09-06", "ObjectsShown": ["Book", "Pen", "Clock", "Lamp"]}),
  (6, 1, 7, (36000, 50000), 40000, {
    "Title": "The gale",
    "Description": "Seas break over the rock, rain, lightning over the tower.",
    "Keywords": ["Storm", "Breakers", "Lightning"], "Places": ["Skarholm"], "Usable": False,
    "SegmentKind": "Sequence", "ShotNumber": 14, "ShotSize": "Long shot", "CameraMovement": "Hand-held",
    "Exterior": True, "FilmedOn": "1935-11-17", "Remarks": "Scratched; two splices near the start."}),
  (7, 1, 0, (50000, 64000), 56600, {
    "Title": "The light at night",
    "Description": "The beams turn under the stars, a steamer passes; fade to black.",
    "Keywords": ["Night", "Beam", "Steamer"], "Places": ["Skarholm"], "Usable": True,
    "SegmentKind": "Sequence", "ShotNumber": 21, "ShotSize": "Long shot", "CameraMovement": "Static",
    "Exterior": True, "FilmedOn": "1935-09-08", "ObjectsShown": ["Lighthouse", "Steamship", "Moon"]}),
]

MAIN_AUDIO = {
  **OF_VERSION, **DESCRIBED,
  "Title": "Sound of Skarholm Light",
  "Time": WHOLE,
  "Description": "Commentary over organ, sea, wind and fog horn.",
  "Usable": True,
  "Content": "Speech and effects",
  "SpokenLanguage": "English",
  "Speaker": "Averill, Hugh",
  "SpeakerRole": "Commentator",
  "Noises": ["Sea", "Wind", "Clock", "Fog horn"],
  "Loudness": -23.5,
  "Synchronous": False,
  "HasAudioTranscript": path("Transcript", 1),
}

SPOKEN = {"SpokenLanguage": "English", "Speaker": "Averill, Hugh", "SpeakerRole": "Commentator", "Usable": True}
AUDIO_SEGMENTS = [
  (2, 1, 3, (0, 3600), {
    "Title": "Organ over the title", "Content": "Music", "Usable": True,
    "MusicTitle": "Lindqvist, Märta: Prelude for harmonium"}),
  (3, 1, 5, (3600, 36000), {
    **SPOKEN, "Title": "The rock and its keeper", "Content": "Speech and effects", "Noises": ["Sea", "Clock"]}),
  (4, 3, 0, (25000, 36000), {
    **SPOKEN, "Title": "The clock of the watch room", "Content": "Speech and effects", "Noises": ["Clock"],
    "Loudness": -27.0}),
  (5, 1, 6, (36000, 50000), {
    **SPOKEN, "Title": "Wind and breakers", "Content": "Speech and effects", "Noises": ["Wind", "Breakers"],
    "Loudness": -18.5}),
  (6, 1, 0, (50000, 64000), {
    **SPOKEN, "Title": "The fog horn", "Content": "Speech and effects", "Noises": ["Fog horn", "Sea"]}),
]

MAIN_TRANSCRIPT = {
  **OF_VERSION, **DESCRIBED,
  "Title": "Commentary of Skarholm Light",
  "Time": WHOLE,
  "Description": "The whole commentary, word by word.",
  "Language": "English",
  "TextSource": "Commentary script",
  "Transcriber": "de Wit, Hanneke",
  "Proofread": True,
}

TRANSCRIPT_SEGMENTS = [
  (2, 1, 3, (3600, 14000), {"Title": "The rock", "Keywords": ["Skarholm"]}),
  (3, 1, 4, (14000, 36000), {"Title": "The keeper", "Keywords": ["Lamp", "Log"], "Persons": ["Holm, Anders"]}),
  (4, 1, 5, (36000, 50000), {"Title": "The gale", "Keywords": ["November", "Storm"]}),
  (5, 1, 0, (50000, 64000), {"Title": "The voice of the light", "Keywords": ["Night", "Flashes"]}),
]


def place(className, number, parent, follower, span):
  """The fields that put a segment into its tree."""
  values = {className + "GUID": path(className, number), "PartOf" + className: path(className, parent),
            "Time": (*span, "")}
  if follower:
    values["FollowedBy" + className] = path(className, follower)
  return values


def videos():
  yield path("Video", 1), {**MAIN_VIDEO, "VideoGUID": path("Video", 1)}
  for number, parent, follower, span, still, values in VIDEO_SEGMENTS:
    yield path("Video", number), {**place("Video", number, parent, follower, span), **DESCRIBED, **values,
                                  "Colour": "Tinted", "Keyframe": (still, 0, PICTURE % (number - 1))}


def audios():
  yield path("Audio", 1), {**MAIN_AUDIO, "AudioGUID": path("Audio", 1)}
  for number, parent, follower, span, values in AUDIO_SEGMENTS:
    yield path("Audio", number), {**place("Audio", number, parent, follower, span), **DESCRIBED, **values}


def transcripts(words):
  yield path("Transcript", 1), {**MAIN_TRANSCRIPT, "TranscriptGUID": path("Transcript", 1),
                                "WordCount": len(words), "TranscriptWordList": words}
  for number, parent, follower, span, values in TRANSCRIPT_SEGMENTS:
    inside = [word for word in words if word[0] >= span[0] and word[1] <= span[1]]
    yield path("Transcript", number), {**place("Transcript", number, parent, follower, span), **values,
                                       "Language": "English", "WordCount": len(inside),
                                       "TranscriptWordList": inside}


def records(words):
  """Path, class and values of each record."""
  for className, rows in (("Video", videos()), ("Audio", audios()), ("Transcript", transcripts(words))):
    for file, values in rows:
      yield file, className, values
