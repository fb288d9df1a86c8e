// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velra::test {

// Each prints what it finds and gives the number of failures.

/// Faults of system calls in all that writes: one of `stride` of them.
int runFaults(int stride);
/// Programs that are killed while somebody works and saves.
int runKills(int kills);
/// Sequences of random commands, beside a model of what must come of them.
int runModel(int sequences);
/// Openings and closings, after which nothing may be left.
int runOpenings(int openings);

}  // namespace velra::test
