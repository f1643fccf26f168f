// SPDX-License-Identifier: GPL-3.0-or-later
// What is typed where no field takes letters: the beginning of a name, until the keys rest.
#pragma once

#include <QElapsedTimer>
#include <string>

class QKeyEvent;

namespace tallyroll {

class TypedAhead {
 public:
  // Whether the key belongs to a name: a character but the blank, or Backspace behind one. A name
  // begins anew when the keys have rested, and when the current place is another than it led to.
  bool Take(const QKeyEvent& event, int place);
  void LeadsTo(int place) { place_ = place; }
  // Whoever goes elsewhere has ended the name, even on the way back.
  void MovedTo(int place) {
    if (place != place_) typed_.clear();
  }
  // In the code page.
  const std::string& typed() const { return typed_; }

 private:
  std::string typed_;
  QElapsedTimer since_;
  int place_ = -1;
};

}  // namespace tallyroll
