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

/// The result of an exchange.
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

/// The full result of one exchange with a server that does `behaviour`.
[[nodiscard]] HttpResult resultWith(const std::function<void(Connection&)>& behaviour,
                                    HttpLimits limits = {});

/// One exchange with the server on `port`.
[[nodiscard]] Body exchangeWith(std::uint16_t port, HttpLimits limits = {});

/// One exchange with a server that does `behaviour`.
[[nodiscard]] Body exchangeWith(const std::function<void(Connection&)>& behaviour,
                                HttpLimits limits = {});

/// One exchange with a server that sends `answer` and closes.
[[nodiscard]] Body exchangeFor(std::string answer, HttpLimits limits = {});

/// One exchange with a server that sends `answer` and keeps the connection.
[[nodiscard]] Body exchangeForKept(std::string answer, HttpLimits limits = {});

/// Concurrent exchanges, one for each place at which `answer` can be cut: in number n,
/// the server sends n bytes of the answer and then calls `end`.
[[nodiscard]] std::vector<Body> exchangesCutAtEveryByte(
    const std::string& answer, const std::function<void(Connection&)>& end);

/// How many connections reached `backend` so far. `backend` must answer, because this
/// opens one more connection, which comes after all others and is not counted.
[[nodiscard]] int connectionsSoFar(const Backend& backend);

}  // namespace quillmark::test
