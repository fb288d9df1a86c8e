// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra {

inline constexpr const char* kUsage = R"(Usage:
  velra-exchange export FORMAT DOCUMENT [-o FILE] [OPTION ...]
  velra-exchange import FORMAT FILE DOCUMENT [OPTION ...]
  velra-exchange import shots DOCUMENT [OPTION ...]
  velra-exchange catalogue DATABASE DOCUMENT ...
  velra-exchange find DATABASE WORD ...
  velra-exchange verify BAG                whether the files of a bag are what they were
  velra-exchange --list                    the formats, and which options each takes
  velra-exchange --help | --version

Options of an export:
  -o FILE            writes there, in place of what is there; else to standard output
  --class CLASS      segments of video, audio or transcript
  --level N          segments of that level: 1 for those of the whole movie, 2 for theirs ...
  --of-version N     of the N-th Version; by default of all, or of the first where one it must be
  --segments         segments in place of words
  --plain            cues without the times of their words
  --rate R           pictures per second
  --movies           the movies too
  --mapping FILE     which field is which element; by default the one beside the schema
  --base ADDRESS     where on the web the document's folder is served

Options of an import:
  --into NAME        the Video, Audio or Transcript of that title, or in that file; by default the
                     main one of the first Version, for words the Transcript
  --of-version N     that of the N-th Version
  --strict           all rows or none
  --segments         cues become segments too
  --replace          words go in place of those that are there
  --rate R           pictures per second
  --record           the record side of a cut list
  --start LABEL      what a cut list has for the movie's first picture, as 01:00:00:00
  --threshold N      by how many hundredths two pictures differ at a cut; by default 7
  --shortest S       seconds of the shortest shot; by default 0.5

A catalogue is a SQLite file or an address as postgresql://user@host/database. Of the documents that
are named it takes those that have changed since last time, and forgets those whose files are gone.
A line of what is found: document, class, title, time, field and text, tabs between them; a word may
end in "*".

The schema and the vocabulary are those of velra's settings (VELRA_MACHINE_SETTINGS names another
file of them). An export only reads the document. A save that was cut off has to be finished first,
by opening the document in velra. An import saves the document at its end, when any row was taken.

Exit status: 0 done; 1 not done, and nothing is written; 2 wrong use; 3 done, but something of the
document could not be read, or a row not taken, as told.
)";

}  // namespace velra
