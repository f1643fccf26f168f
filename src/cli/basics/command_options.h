// SPDX-License-Identifier: GPL-3.0-or-later
// How a command names its options. The parser behind it stands in command_options.cpp alone: each
// file that sees the parser's header takes five seconds longer to read and seventeen to compile.
#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "store/records.h"

namespace CLI {  // NOLINT(readability-identifier-naming): the library has named it
class App;
class Option;
}  // namespace CLI

namespace tallyroll {

// An option, or an argument by its place. What is asked of it is refused by the parser otherwise.
class CommandOption {
 public:
  explicit CommandOption(CLI::Option* option) : option_(option) {}

  CommandOption Required();
  CommandOption OneOf(std::vector<std::string> values);
  CommandOption OneOf(std::vector<int> values);
  CommandOption Between(int least, int most);
  // `reason` answers why a text is refused, or nothing.
  CommandOption Check(std::function<std::string(const std::string& text)> reason);
  // Each time it is given it takes one value.
  CommandOption OneValueEach();
  // An argument that takes so many values.
  CommandOption Values(int least, int most);
  CommandOption Excludes(CommandOption other);
  CommandOption Needs(CommandOption other);

 private:
  CLI::Option* option_;
};

// A command, or the program itself.
class Command {
 public:
  explicit Command(CLI::App& app) : app_(&app) {}

  Command AddCommand(const std::string& name, const std::string& help);
  // One of its commands must follow.
  void RequireCommand();
  CommandOption AddOption(const std::string& name, std::string& value, const std::string& help);
  CommandOption AddOption(const std::string& name, int& value, const std::string& help);
  CommandOption AddOption(const std::string& name, i16& value, const std::string& help);
  CommandOption AddOption(const std::string& name, std::optional<std::string>& value,
                          const std::string& help);
  CommandOption AddOption(const std::string& name, std::vector<std::string>& values,
                          const std::string& help);
  CommandOption AddFlag(const std::string& name, bool& value, const std::string& help);
  CommandOption Option(const std::string& name);
  // Called when the command line chose this command and is in order.
  void WhenChosen(std::function<void()> chosen);

 private:
  CLI::App* app_;
};

enum class ParsedLine { kChosen, kAnswered, kWrong };

// A whole command line.
class CommandParser {
 public:
  CommandParser();
  ~CommandParser();

  Command Root() { return Command(*app_); }
  // Answers --help and --version on `out`; `reason` says what is wrong.
  ParsedLine Parse(int argc, const char* const* argv, std::ostream& out, std::string& reason);

 private:
  std::unique_ptr<CLI::App> app_;
};

}  // namespace tallyroll
