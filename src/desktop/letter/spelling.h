// SPDX-License-Identifier: GPL-3.0-or-later
// Spelling by a dictionary of the machine. Library and dictionaries may be missing: then there is
// no checking, and nothing else changes.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <memory>

namespace tallyroll {

class Spelling {
 public:
  virtual ~Spelling() = default;

  bool Knows(const QString& word);
  virtual QStringList Suggestions(const QString& word) = 0;
  // Puts the word on the teacher's own list, for good. False when the list cannot be written; the
  // word is then known as long as the program runs.
  virtual bool Learn(const QString& word) = 0;

 protected:
  virtual bool Look(const QString& word) = 0;
  void Forget() { known_.clear(); }

 private:
  QHash<QString, bool> known_;  // asking is slow, and a letter has few different words
};

// The words of a text that are to be checked, with their places: figures, single letters and what
// is part of an address or a "<Field Code>" are none.
struct SpelledWord {
  qsizetype start = 0;
  qsizetype length = 0;
};
QList<SpelledWord> WordsToCheck(const QString& text);

// The dictionary of the language (as "en_US"), or else one of the same language with another
// country, as path without extension; empty when there is none.
QString DictionaryFor(const QString& language, const QStringList& folders);
QStringList DictionaryFolders();

// Null where the library or a dictionary is missing. The teacher's own words are one a line in the
// file `own_words`, in UTF-8.
std::unique_ptr<Spelling> OpenSpelling(const QString& dictionary, const QString& own_words);

// The one of the program: of the system's language, made at the first call. Null as above.
Spelling* ProgramSpelling();

}  // namespace tallyroll
