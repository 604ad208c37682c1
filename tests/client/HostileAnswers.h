// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmark::test {

/// What somebody in the agent's place may send when asked for the status.
struct HostileAnswer {
  enum class Yields { theRecord, nothing };

  std::string what;  ///< for the eyes
  std::string bytes;
  Yields yields;
};

/// This piece that many times.
std::string repeated(int count, std::string_view piece);

/// Whatever the status says, the body decides: the good `body` yields the
/// record and any other nothing. Where a status or field names another place to
/// go to, it is `elsewhere`, the beginning of a URL.
std::vector<HostileAnswer> answersOfEveryStatus(const std::string& body,
                                                const std::string& elsewhere);
/// Fields that ask for something that the client never does.
std::vector<HostileAnswer> answersWithDemands(const std::string& body,
                                              const std::string& elsewhere);
/// Every way to tell where the body ends, and every lie about it.
std::vector<HostileAnswer> answersInEveryFraming(const std::string& body);
/// Bodies in other encodings, and far too much of one.
std::vector<HostileAnswer> answersInEveryEncoding(const std::string& body);
/// What is no answer at all.
std::vector<HostileAnswer> answersOfOtherProtocols(const std::string& body);

}  // namespace quillmark::test
