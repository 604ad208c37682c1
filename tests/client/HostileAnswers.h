// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmark::test {

/// What a hostile server on the agent's port may send as the status.
struct HostileAnswer {
  enum class Yields { theRecord, nothing };

  std::string what;  ///< a description, for failure messages
  std::string bytes;
  Yields yields;
};

/// `piece`, repeated `count` times.
std::string repeated(int count, std::string_view piece);

/// For almost every status only the body decides: the good `body` yields the record,
/// any other nothing. Redirections lead to `elsewhere`, the beginning of a URL.
std::vector<HostileAnswer> answersOfEveryStatus(const std::string& body,
                                                const std::string& elsewhere);
/// Fields that ask for something that the client never does.
std::vector<HostileAnswer> answersWithDemands(const std::string& body,
                                              const std::string& elsewhere);
/// Every way to mark the end of the body, correct and incorrect.
std::vector<HostileAnswer> answersInEveryFraming(const std::string& body);
/// Bodies in other encodings, and bodies that are too large.
std::vector<HostileAnswer> answersInEveryEncoding(const std::string& body);
/// Answers of other protocols, and malformed status lines.
std::vector<HostileAnswer> answersOfOtherProtocols(const std::string& body);

}  // namespace quillmark::test
