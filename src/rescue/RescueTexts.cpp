// SPDX-License-Identifier: GPL-3.0-or-later
#include "rescue/RescueTexts.h"

namespace velra {
namespace {

constexpr RescueTexts kEnglishTexts = {
    .aSave = "A save",
    .of = " of ",
    .cutOff = " that was cut off ",
    .finished = "has been finished",
    .leftSince = "was left as it is, since ",
    .changedSince = " has been changed since; what it would have written is kept",
    .underTheName = "under the name of ",
    .undone = " has been undone",
    .notFinished = "could not be finished: ",
    .isNotThere = " is not there",
    .isOpen = " is open",
};

constexpr RescueTexts kItalianTexts = {
    .aSave = "Un salvataggio",
    .of = " di ",
    .cutOff = " che era stato interrotto ",
    .finished = "è stato completato",
    .leftSince = "è stato lasciato com'è, poiché ",
    .changedSince = " è stato modificato nel frattempo; ciò che avrebbe scritto è conservato",
    .underTheName = "con il nome di ",
    .undone = " è stato annullato",
    .notFinished = "non ha potuto essere completato: ",
    .isNotThere = " non c'è",
    .isOpen = " è aperto",
};

}  // namespace

const RescueTexts& rescueTexts(bool italian) {
  return italian ? kItalianTexts : kEnglishTexts;
}

}  // namespace velra
