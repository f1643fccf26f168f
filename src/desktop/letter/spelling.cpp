// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/letter/spelling.h"

#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QLocale>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStringConverter>
#include <QTextStream>

#include "desktop/basics/text_conversion.h"
#include "platform/surroundings.h"

namespace tallyroll {
namespace {

// What the library offers to a program in C, by the names it has there.
struct SpellingLibrary {
  struct Handle;
  Handle* (*create)(const char* affixes, const char* words) = nullptr;
  void (*destroy)(Handle*) = nullptr;
  int (*spell)(Handle*, const char* word) = nullptr;
  int (*suggest)(Handle*, char*** list, const char* word) = nullptr;
  void (*free_list)(Handle*, char*** list, int count) = nullptr;
  int (*add)(Handle*, const char* word) = nullptr;
  char* (*encoding)(Handle*) = nullptr;

  bool Load() {
    for (const char* name : {"libhunspell-1.7.so.0", "libhunspell-1.6.so.0", "libhunspell.so.0"})
      if (LoadFrom(QString::fromLatin1(name))) return true;
    return false;
  }

 private:
  template <typename F>
  static bool Take(QLibrary& library, const char* name, F& function) {
    function = reinterpret_cast<F>(library.resolve(name));
    return function != nullptr;
  }
  bool LoadFrom(const QString& name) {
    QLibrary library(name);
    return library.load() && Take(library, "Hunspell_create", create) &&
           Take(library, "Hunspell_destroy", destroy) && Take(library, "Hunspell_spell", spell) &&
           Take(library, "Hunspell_suggest", suggest) &&
           Take(library, "Hunspell_free_list", free_list) && Take(library, "Hunspell_add", add) &&
           Take(library, "Hunspell_get_dic_encoding", encoding);
  }
};

class DictionarySpelling : public Spelling {
 public:
  DictionarySpelling(const SpellingLibrary& library, SpellingLibrary::Handle* handle,
                     QString own_words)
      : library_(library),
        handle_(handle),
        own_words_(std::move(own_words)),
        encode_(library.encoding(handle)),
        decode_(library.encoding(handle)) {
    QFile file(own_words_);
    if (!file.open(QIODevice::ReadOnly)) return;
    QTextStream lines(&file);
    for (QString line; lines.readLineInto(&line);) Add(line.trimmed());
  }
  ~DictionarySpelling() override { library_.destroy(handle_); }
  DictionarySpelling(const DictionarySpelling&) = delete;
  DictionarySpelling& operator=(const DictionarySpelling&) = delete;

  QStringList Suggestions(const QString& word) override {
    const QByteArray bytes = Encoded(word);
    QStringList words;
    if (bytes.isEmpty()) return words;
    char** list = nullptr;
    const int count = library_.suggest(handle_, &list, bytes.constData());
    for (int i = 0; i < count; ++i) words << QString(decode_.decode(QByteArray(list[i])));
    library_.free_list(handle_, &list, count);
    return words;
  }

  bool Learn(const QString& word) override {
    Add(word);
    Forget();
    QStringList all = own_;
    all.sort();
    QSaveFile file(own_words_);
    if (!file.open(QIODevice::WriteOnly)) return false;
    file.write(all.join(QLatin1Char('\n')).toUtf8() + '\n');
    return file.commit();
  }

 protected:
  // What the dictionary's letters cannot write is no word of its language, and not a wrong one.
  bool Look(const QString& word) override {
    const QByteArray bytes = Encoded(word);
    return bytes.isEmpty() || library_.spell(handle_, bytes.constData()) != 0;
  }

 private:
  QByteArray Encoded(const QString& word) {
    // Dictionaries write the apostrophe of the keyboard.
    QString plain = word;
    plain.replace(QChar(0x2019), QLatin1Char('\''));
    const QByteArray bytes = encode_.encode(plain);
    return encode_.hasError() ? (encode_.resetState(), QByteArray()) : bytes;
  }
  void Add(const QString& word) {
    const QByteArray bytes = Encoded(word);
    if (word.isEmpty() || bytes.isEmpty() || own_.contains(word)) return;
    own_ << word;
    library_.add(handle_, bytes.constData());
  }

  SpellingLibrary library_;
  SpellingLibrary::Handle* handle_;
  QString own_words_;
  QStringEncoder encode_;
  QStringDecoder decode_;
  QStringList own_;
};

bool IsChecked(const QString& word) {
  return word.size() > 1 && word != word.toUpper();
}

}  // namespace

bool Spelling::Knows(const QString& word) {
  const auto found = known_.constFind(word);
  if (found != known_.constEnd()) return *found;
  const bool known = Look(word);
  known_.insert(word, known);
  return known;
}

QList<SpelledWord> WordsToCheck(const QString& text) {
  // A code, an address, a word with figures in it; the last of the alternatives is a word.
  static const QRegularExpression pattern(
      QStringLiteral(
          "<[^<>]*>|\\S+@\\S+|\\w+://\\S+|www\\.\\S+|[\\p{L}\\p{M}]*\\d[\\p{L}\\p{M}\\d]*"
          "|([\\p{L}\\p{M}]+(?:['\\x{2019}][\\p{L}\\p{M}]+)*)"),
      QRegularExpression::UseUnicodePropertiesOption);
  QList<SpelledWord> words;
  for (auto matches = pattern.globalMatch(text); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    if (match.hasCaptured(1) && IsChecked(match.captured(1)))
      words << SpelledWord{match.capturedStart(1), match.capturedLength(1)};
  }
  return words;
}

QStringList DictionaryFolders() {
  return {QDir::homePath() + QStringLiteral("/.local/share/hunspell"),
          QStringLiteral("/usr/local/share/hunspell"), QStringLiteral("/usr/share/hunspell"),
          QStringLiteral("/usr/share/myspell/dicts")};
}

QString DictionaryFor(const QString& language, const QStringList& folders) {
  const QString wanted = language.section(QLatin1Char('_'), 0, 0);
  for (const QString& pattern : {language, wanted, wanted + QStringLiteral("_*")}) {
    for (const QString& folder : folders) {
      const QStringList found =
          QDir(folder).entryList({pattern + QStringLiteral(".aff")}, QDir::Files, QDir::Name);
      for (const QString& name : found) {
        const QString path = folder + QLatin1Char('/') + name.chopped(4);
        if (QFile::exists(path + QStringLiteral(".dic"))) return path;
      }
    }
  }
  return {};
}

std::unique_ptr<Spelling> OpenSpelling(const QString& dictionary, const QString& own_words) {
  SpellingLibrary library;
  if (dictionary.isEmpty() || !library.Load()) return nullptr;
  auto* handle = library.create(QFile::encodeName(dictionary + QStringLiteral(".aff")).constData(),
                                QFile::encodeName(dictionary + QStringLiteral(".dic")).constData());
  if (!handle) return nullptr;
  auto spelling = std::make_unique<DictionarySpelling>(library, handle, own_words);
  return spelling;
}

Spelling* ProgramSpelling() {
  static const std::unique_ptr<Spelling> spelling = [] {
    const QString name = QLocale::system().name();
    const QString language = name == QLatin1String("C") ? QStringLiteral("en_US") : name;
    return OpenSpelling(
        DictionaryFor(language, DictionaryFolders()),
        QFile::decodeName(Platform().ProfileFolder().c_str()) + QStringLiteral("/words.txt"));
  }();
  return spelling.get();
}

}  // namespace tallyroll
