// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Output.h"

#include <algorithm>
#include <string_view>

#include <boost/json/array.hpp>
#include <boost/json/serialize.hpp>

namespace quillmark::doctor {
namespace {

constexpr int schemaVersion = 1;
constexpr std::size_t markWidth = 5;
constexpr std::size_t checkWidth = 12;

struct Style {
  const char* sign;
  const char* colour;
};

Style styleOf(Mark mark) {
  switch (mark) {
    case Mark::ok:
      return {"✓", "\x1B[32m"};
    case Mark::note:
      return {"•", "\x1B[33m"};
    case Mark::wrong:
      break;
  }
  return {"✗", "\x1B[31m"};
}

std::string padded(std::string text, std::size_t width) {
  text.resize(std::max(width, text.size()), ' ');
  return text;
}

std::string line(const Finding& finding, Colour colour) {
  const auto [sign, paint] = styleOf(finding.mark);
  const bool isPlain = colour == Colour::none;
  return (isPlain ? "" : paint) + std::string(sign) + ' ' +
         padded(nameOf(finding.mark), markWidth) + (isPlain ? "" : "\x1B[0m") + "  " +
         padded(finding.check, checkWidth) + "  " + finding.text + '\n';
}

boost::json::object asJson(const Finding& finding) {
  return {{"check", finding.check},
          {"mark", nameOf(finding.mark)},
          {"text", finding.text},
          {"next_step", textOrNull(finding.step)},
          {"facts", finding.facts}};
}

}  // namespace

std::string asText(const Report& report, Colour colour) {
  std::string text;
  for (const auto& finding : report.findings) {
    text += line(finding, colour);
  }
  const auto& [isOnline, words, step] = report.conclusion;
  return text + '\n' + words + "\nNext step: " + (step.empty() ? "none." : step) + '\n';
}

std::string asJson(const Report& report) {
  boost::json::array checks;
  for (const auto& finding : report.findings) {
    checks.push_back(asJson(finding));
  }
  const boost::json::object object = {
      {"schema_version", schemaVersion},      {"version", QUILLMARK_VERSION},
      {"exit_code", exitCode(report)},        {"online", report.conclusion.isOnline},
      {"conclusion", report.conclusion.text}, {"next_step", textOrNull(report.conclusion.step)},
      {"checks", std::move(checks)}};
  return boost::json::serialize(object) + '\n';
}

int exitCode(const Report& report) {
  return std::any_of(report.findings.begin(), report.findings.end(), isWrong) ? somethingWrong : 0;
}

}  // namespace quillmark::doctor
