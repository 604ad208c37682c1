// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <future>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "client/HttpExchange.h"
#include "client/TaskExecutor.h"
#include "support/Backend.h"

namespace quillmark::test {

/// What an exchange completes with.
using Body = std::optional<std::string>;
inline constexpr auto noBody = std::nullopt;

/// Tests whose exchanges run on the process's executor.
class WithExecutor : public testing::Test {
 private:
  const TaskExecutor executor_;
};

/// A request as the client makes them.
[[nodiscard]] HttpRequest requestTo(std::uint16_t port, std::string target = "/api/status");

[[nodiscard]] std::future<Body> startExchange(HttpRequest request, HttpLimits limits = {});

/// All that an exchange with a server that does this completes with.
[[nodiscard]] HttpResult resultWith(const std::function<void(Connection&)>& behaviour,
                                    HttpLimits limits = {});

/// One exchange with the server on `port`.
[[nodiscard]] Body exchangeWith(std::uint16_t port, HttpLimits limits = {});

/// One exchange with a server that does this.
[[nodiscard]] Body exchangeWith(const std::function<void(Connection&)>& behaviour,
                                HttpLimits limits = {});

/// One exchange with a server that sends `answer` and closes.
[[nodiscard]] Body exchangeFor(std::string answer, HttpLimits limits = {});

/// One exchange with a server that sends `answer` and keeps the connection.
[[nodiscard]] Body exchangeForKept(std::string answer, HttpLimits limits = {});

/// As many exchanges at once as `answer` has places to be cut at: in the n-th,
/// n bytes of the answer arrive, and then the connection comes to this end.
[[nodiscard]] std::vector<Body> exchangesCutAtEveryByte(
    const std::string& answer, const std::function<void(Connection&)>& end);

/// How many connections reached `backend` so far. It must answer: one more
/// connection, which is sure to come after all others, is counted off.
[[nodiscard]] int connectionsSoFar(const Backend& backend);

}  // namespace quillmark::test
