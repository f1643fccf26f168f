// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/command_options.h"

#include <CLI/CLI.hpp>
#include <utility>

namespace tallyroll {

CommandOption CommandOption::Required() {
  option_->required();
  return *this;
}

CommandOption CommandOption::OneOf(std::vector<std::string> values) {
  option_->check(CLI::IsMember(std::move(values)));
  return *this;
}

CommandOption CommandOption::OneOf(std::vector<int> values) {
  option_->check(CLI::IsMember(std::move(values)));
  return *this;
}

CommandOption CommandOption::Between(int least, int most) {
  option_->check(CLI::Range(least, most));
  return *this;
}

CommandOption CommandOption::Check(std::function<std::string(const std::string& text)> reason) {
  option_->check(std::move(reason));
  return *this;
}

CommandOption CommandOption::OneValueEach() {
  option_->allow_extra_args(false);
  return *this;
}

CommandOption CommandOption::Values(int least, int most) {
  option_->expected(least, most);
  return *this;
}

CommandOption CommandOption::Excludes(CommandOption other) {
  option_->excludes(other.option_);
  return *this;
}

CommandOption CommandOption::Needs(CommandOption other) {
  option_->needs(other.option_);
  return *this;
}

Command Command::AddCommand(const std::string& name, const std::string& help) {
  return Command(*app_->add_subcommand(name, help));
}

CommandOption Command::AddOption(const std::string& name, std::string& value,
                                 const std::string& help) {
  return CommandOption(app_->add_option(name, value, help));
}

CommandOption Command::AddOption(const std::string& name, int& value, const std::string& help) {
  return CommandOption(app_->add_option(name, value, help));
}

CommandOption Command::AddOption(const std::string& name, i16& value, const std::string& help) {
  return CommandOption(app_->add_option(name, value, help));
}

CommandOption Command::AddOption(const std::string& name, std::optional<std::string>& value,
                                 const std::string& help) {
  return CommandOption(app_->add_option(name, value, help));
}

CommandOption Command::AddOption(const std::string& name, std::vector<std::string>& values,
                                 const std::string& help) {
  return CommandOption(app_->add_option(name, values, help));
}

void Command::RequireCommand() {
  app_->require_subcommand(1);
}

CommandOption Command::AddFlag(const std::string& name, bool& value, const std::string& help) {
  return CommandOption(app_->add_flag(name, value, help));
}

CommandOption Command::Option(const std::string& name) {
  return CommandOption(app_->get_option(name));
}

void Command::WhenChosen(std::function<void()> chosen) {
  app_->callback(std::move(chosen));
}

CommandParser::CommandParser()
    : app_(std::make_unique<CLI::App>("Tallyroll without a screen", "tallyroll-cli")) {
  app_->set_version_flag("--version", "tallyroll-cli " TALLYROLL_VERSION);
  app_->require_subcommand(1);
}

CommandParser::~CommandParser() = default;

ParsedLine CommandParser::Parse(int argc, const char* const* argv, std::ostream& out,
                                std::string& reason) {
  try {
    app_->parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() != 0) {
      reason = error.what();
      return ParsedLine::kWrong;
    }
    app_->exit(error, out, out);
    return ParsedLine::kAnswered;
  }
  return ParsedLine::kChosen;
}

}  // namespace tallyroll
