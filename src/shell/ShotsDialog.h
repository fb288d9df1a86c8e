// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "exchange/imports/ShotImport.h"

namespace velra {

class ApplicationModule;
class DialogPresenter;
class FormOwner;
struct PictureFrame;

/// The shots that were found in a movie, of which a person takes those that are ticked. One
/// instance is made for one showing.
class ShotsDialog {
 public:
  static constexpr double kMostThreshold = 100;
  static constexpr double kLongestShortest = 600;  // seconds

  /// `rate` is pictures per second, for the time codes.
  ShotsDialog(ApplicationModule& app, ShotTask task, double rate);

  struct Row {
    std::string text;
    std::shared_ptr<const PictureFrame> picture;  // the first of the shot
    bool ticked = true;
  };

  /// Searches, and shows the list over the owner until it is closed. The shots that are to become
  /// segments; none when the person wants none.
  std::vector<FoundShot> Show(DialogPresenter& presenter, FormOwner& owner);

  const std::vector<Row>& rows() const { return rows_; }
  double threshold() const { return task_.search.threshold; }
  double shortest() const { return task_.search.shortest; }

  /// By its position from 0.
  void setTicked(std::size_t row, bool ticked);

  // The buttons. A search that is cancelled leaves the list as it was.
  void SearchButton_Click(double threshold, double shortest);
  void OKButton_Click();
  void CancelButton_Click();

  /// Closes the window, and tells it that the rows are others; the face sets them.
  std::function<void()> onUnload;
  std::function<void()> onRows;

 private:
  bool search(const ShotSearch& search);

  ApplicationModule& app_;
  ShotTask task_;
  const double rate_;
  std::vector<FoundShot> shots_;  // as the rows
  std::vector<Row> rows_;
  bool taken_ = false;
};

}  // namespace velra
