// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <thread>
#include <utility>

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/post.hpp>

#include "Server.h"
#include "sample-agent/RawClient.h"

namespace quillmark::sample::test {

inline const std::string agentToken = "0123456789abcdef0123456789abcdef";

/// Bodies of which only the status matters: `goodRequest` asks for that.
[[nodiscard]] inline std::shared_ptr<const AnswerBodies> bodiesWith(std::string status) {
  return std::make_shared<const AnswerBodies>(
      AnswerBodies{std::move(status), "alerts", "network", "apps"});
}

[[nodiscard]] inline std::string filler(std::size_t size) { return std::string(size, 'x'); }

/// A server on a free port, with its thread.
class RunningServer {
 public:
  explicit RunningServer(const ServerLimits& limits = {}, bool isReady = true)
      : acceptor_(context_,
                  boost::asio::ip::tcp::endpoint(boost::asio::ip::address_v4::loopback(), 0)),
        port_(acceptor_.local_endpoint().port()),
        server_(std::move(acceptor_), agentToken, limits) {
    if (isReady) {
      server_.publish(bodiesWith("first"));
    }
    thread_ = std::jthread([this] { context_.run(); });
  }
  ~RunningServer() {
    context_.stop();
    thread_.join();
  }

  void publish(const std::shared_ptr<const AnswerBodies>& bodies) {
    boost::asio::post(context_, [this, bodies] { server_.publish(bodies); });
  }
  [[nodiscard]] std::uint16_t port() const { return port_; }

 private:
  boost::asio::io_context context_;
  boost::asio::executor_work_guard<boost::asio::io_context::executor_type> work_{
      context_.get_executor()};
  boost::asio::ip::tcp::acceptor acceptor_;
  std::uint16_t port_;
  Server server_;
  std::jthread thread_;
};

/// A request for the status with the right token.
[[nodiscard]] inline std::string goodRequest() {
  RequestText request;
  request.token = agentToken;
  return request.text();
}

}  // namespace quillmark::sample::test
