#pragma once

#include <functional>
#include <map>
#include <string>

class QWidget;

namespace kw {

class Formular;

/// A form's widgets under their controls' names.
using Formularteile = std::map<std::string, QWidget *, std::less<>>;

/// Puts the widgets of a form into layouts on `fenster`: as it is told for that form, or label in front of box in
/// the order of the controls. What a form's own layout doesn't know stands below it. The form is loaded already.
void FormularAnordnen(const Formular &form, const Formularteile &teile, QWidget &fenster);

} // namespace kw
