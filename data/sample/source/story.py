"""What the sample movie tells: its scenes, the commentary with the moment of each phrase, and the
pictures that stand for its segments. All times are seconds; a frame lasts 0.04."""

FRAME_RATE = 25
DURATION = 64.0

# name, start, end
SCENES = [
  ("title", 0.0, 4.0),
  ("dawn", 4.0, 14.0),
  ("stairs", 14.0, 25.0),
  ("logbook", 25.0, 36.0),
  ("gale", 36.0, 50.0),
  ("night", 50.0, 64.0),
]

# Start of the phrase and its words. Pairs that the synthesiser runs together ("of the", "than a")
# are avoided, since it gives one time for both.
COMMENTARY = [
  (3.7, "At the edge of northern waters, on a bare rock no bigger than one village square,"
        " stands Skarholm light."),
  (10.9, "For ninety years it has burned here every night."),
  (14.3, "Each morning keeper Anders Holm climbs one hundred and twelve steps."),
  (19.45, "He trims every wick, polishes each lens and winds his clockwork by hand."),
  (25.6, "Then he sits down with pen and ink."),
  (28.8, "Wind, weather, passing ships: whatever he sees, his logbook keeps."),
  (36.7, "In November come gales."),
  (39.0, "Waves as high as houses break over that rock, and for nine days no boat can land."),
  (46.0, "Nobody comes, nobody leaves."),
  (50.7, "But when darkness falls, his lamp turns again."),
  (54.4, "Two flashes, then a pause: every sailor along this coast knows its voice"
         " and steers safely home."),
]
