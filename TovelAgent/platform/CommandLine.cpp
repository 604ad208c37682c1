// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CommandLine.h"

#include <algorithm>
#include <iostream>
#include <string_view>

#include <getopt.h>

namespace quillmark {
namespace {

// Above all character values, so that they do not collide with short options.
enum OptionCode : int { flagOption = 256, valueOption };

std::vector<option> optionTable(const CommandLineRules& rules) {
  std::vector<option> table{{"help", no_argument, nullptr, 'h'},
                            {"version", no_argument, nullptr, 'V'}};
  for (const auto& flag : rules.flags) {
    table.push_back({flag.c_str(), no_argument, nullptr, flagOption});
  }
  for (const auto& name : rules.valueOptions) {
    table.push_back({name.c_str(), required_argument, nullptr, valueOption});
  }
  table.push_back({nullptr, 0, nullptr, 0});
  return table;
}

CommandLine exitWith(int exitCode) { return {.exitCode = exitCode, .flags = {}}; }

CommandLine reportMisuse(const CommandLineRules& rules, const std::string& reason) {
  std::cerr << rules.program << ": " << reason << '\n' << rules.help;
  return exitWith(usageError);
}

}  // namespace

bool CommandLine::has(const std::string& flag) const {
  return std::find(flags.begin(), flags.end(), flag) != flags.end();
}

CommandLine readCommandLine(int argc, char* argv[], const CommandLineRules& rules) {
  const auto table = optionTable(rules);
  const auto nextOption = rules.valueOptions.empty() ? getopt_long : getopt_long_only;
  // "+": stop at the first word that is not an option. ":": return ':' for an option
  // whose value is missing.
  constexpr auto shortOptions = "+:hV";
  CommandLine line;
  opterr = 0;
  while (true) {
    // The word that getopt reads next: getopt does not report which word it rejects.
    const std::string_view word = optind < argc ? argv[optind] : "";
    int index = 0;
    switch (nextOption(argc, argv, shortOptions, table.data(), &index)) {
      case -1:
        if (optind < argc) {
          return reportMisuse(rules, std::string("unexpected argument '") + argv[optind] + "'");
        }
        return line;
      case 'h':
        std::cout << rules.help;
        return exitWith(std::cout.flush() ? 0 : 1);
      case 'V':
        std::cout << rules.program << ' ' << rules.version << '\n';
        return exitWith(std::cout.flush() ? 0 : 1);
      case flagOption:
        line.flags.emplace_back(table[static_cast<std::size_t>(index)].name);
        break;
      case valueOption:
        break;
      case ':':
        return reportMisuse(rules, "a value is missing after '" + std::string(word) + "'");
      default:
        return reportMisuse(rules, "unknown option '" + std::string(word) + "'");
    }
  }
}

}  // namespace quillmark
