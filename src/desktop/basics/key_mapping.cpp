// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/basics/key_mapping.h"

#include <QKeyEvent>
#include <array>
#include <utility>

#include "base/code_page.h"

namespace tallyroll {
namespace {

constexpr std::array<std::pair<int, Key>, 14> kNamedKeys{{{Qt::Key_Up, Key::kUp},
                                                          {Qt::Key_Down, Key::kDown},
                                                          {Qt::Key_Left, Key::kLeft},
                                                          {Qt::Key_Right, Key::kRight},
                                                          {Qt::Key_PageUp, Key::kPageUp},
                                                          {Qt::Key_PageDown, Key::kPageDown},
                                                          {Qt::Key_Home, Key::kHome},
                                                          {Qt::Key_End, Key::kEnd},
                                                          {Qt::Key_Tab, Key::kTab},
                                                          {Qt::Key_Backtab, Key::kBackTab},
                                                          {Qt::Key_Return, Key::kEnter},
                                                          {Qt::Key_Enter, Key::kEnter},
                                                          {Qt::Key_Delete, Key::kDelete},
                                                          {Qt::Key_Insert, Key::kInsert}}};

constexpr unsigned char kBackspace = 8;
constexpr char16_t kBlank = 32;

}  // namespace

std::optional<Key> KeyOf(const QKeyEvent& event) {
  const int key = event.key();
  // Two keys for one thing: to drop a list.
  if (key == Qt::Key_Down && event.modifiers() & Qt::AltModifier) return Key::kF4;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
    return static_cast<Key>(static_cast<int>(Key::kF1) + key - Qt::Key_F1);
  for (const auto& [code, named] : kNamedKeys)
    if (code == key) return named;
  return std::nullopt;
}

std::optional<unsigned char> CharacterOf(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Backspace) return kBackspace;
  const QString text = event.text();
  if (text.size() != 1 || text[0].unicode() < kBlank || event.key() == Qt::Key_Delete)
    return std::nullopt;
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) return std::nullopt;
  return CodePageOf(text[0].unicode());
}

}  // namespace tallyroll
