// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <functional>

#include <boost/asio/awaitable.hpp>
#include <boost/asio/ip/tcp.hpp>

#include "RequestRule.h"

namespace quillmark::sample {

/// Chooses the answer to a request, whose strings are valid only during the call.
using AnswerRule = std::function<Answer(const Request&)>;

/// Reads one HTTP request from `socket`, answers it by `rule`, and waits until
/// the client has received the answer. Reads no body and at most `headerBytes` of
/// header; a request that exceeds the limit or violates the protocol is answered
/// without calling `rule`. Ends early, without an error, if the socket is closed
/// meanwhile, by the client or by the caller's time limit.
[[nodiscard]] boost::asio::awaitable<void> serveRequest(boost::asio::ip::tcp::socket& socket,
                                                        std::uint32_t headerBytes, AnswerRule rule);

}  // namespace quillmark::sample
