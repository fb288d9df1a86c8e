#pragma once

class QGroupBox;
class QWidget;

namespace velra {

class ApplicationModule;
class SpecialFields;
struct FieldBox;

/// The box of a field on a form's panel, with its control in it: the frame `Frame1_k` and a control
/// of the field's kind. The box, and `special`, which may be null, must outlive the frame.
QGroupBox* makeFieldFrame(FieldBox& box, SpecialFields* special, const ApplicationModule& app,
                          QWidget* panel);

}  // namespace velra
