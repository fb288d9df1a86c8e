// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool/KeyCommands.h"

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include "app/ApplicationModule.h"
#include "base/Text.h"
#include "platform/UserInterface.h"
#include "tool/ExpressionTool.h"
#include "values/TimeCode.h"

namespace velra {

namespace {

std::optional<std::int16_t> timeField(const std::string& text) {
  const auto number = toNumber(text);
  const bool fits = number && *number >= 0 && *number <= std::numeric_limits<std::int16_t>::max() &&
                    *number == std::floor(*number);
  return fits ? std::optional(static_cast<std::int16_t>(*number)) : std::nullopt;
}

// Seconds. Few people type the hours of a short movie: the last field is always that of the frames.
std::optional<double> typedTime(const std::string& text, double rate) {
  TimeCode parts{};
  const std::vector<std::string> fields = split(text, ':');
  if (fields.size() > parts.size()) return std::nullopt;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const auto field = timeField(fields[i]);
    if (!field) return std::nullopt;
    parts[parts.size() - fields.size() + i] = *field;
  }
  return JoinTimeCode(parts, rate);
}

}  // namespace

void KeyCommands::takeFirstPoint() {
  tool_.segments.CancelSelection();
  tool_.segments.SelectSegmentPoint();
}

void KeyCommands::takeSecondPoint() {
  tool_.segments.SelectSecondPoint();
}

void KeyCommands::askTimeCode() {
  if (!tool_.advsld.Enabled()) return;
  std::string text = timeCode();
  while (true) {
    text = app_.ui.inputBox(app_.LoadResString(Message::TimeCodePrompt),
                            app_.LoadResString(Message::GoToTimeCode), text);
    if (text.empty()) return;
    if (const auto time = typedTime(text, tool_.player.dFrameRate())) {
      tool_.advsld.setDPosition(*time);
      tool_.segments.timelineScrolled();
      return tool_.player.announcePosition();
    }
    app_.ui.messageBox(app_.LoadResString(Message::NoTimeCode) + text);
  }
}

std::string KeyCommands::timeCode() const {
  const Player& player = tool_.player;
  return player.hasMovie() ? player.TimeToText(player.CurrentPosition()) : std::string();
}

}  // namespace velra
