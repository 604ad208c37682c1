// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <functional>

#include <boost/asio/awaitable.hpp>
#include <boost/asio/ip/tcp.hpp>

#include "RequestRule.h"

namespace quillmark::sample {

/// Decides about a request that was read; its texts live as long as the call.
using AnswerRule = std::function<Answer(const Request&)>;

/// Reads one HTTP request of `socket`, answers it by `rule`, and waits until
/// the client has taken the answer. Reads no body and at most `headerBytes` of
/// header; a request that breaks these bounds or the protocol is answered
/// without the rule. Ends early, without an error, when the socket is closed
/// meanwhile: by the client, or by whoever limits the time.
[[nodiscard]] boost::asio::awaitable<void> converse(boost::asio::ip::tcp::socket& socket,
                                                    std::uint32_t headerBytes, AnswerRule rule);

}  // namespace quillmark::sample
