// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/Backend.h"

#include <array>
#include <utility>

#include <boost/asio/buffer.hpp>
#include <boost/asio/read_until.hpp>
#include <boost/asio/streambuf.hpp>
#include <boost/asio/write.hpp>

#include <poll.h>

namespace quillmark::test {
namespace {

namespace asio = boost::asio;
using asio::ip::tcp;
using boost::system::error_code;
using namespace std::chrono_literals;

constexpr auto lookInterval = 10ms;

bool readable(int descriptor, std::chrono::milliseconds time) {
  pollfd entry{descriptor, POLLIN, 0};
  return poll(&entry, 1, static_cast<int>(time.count())) > 0;
}

Backend::Handler fromTable(std::map<std::string, std::string> answers) {
  return [answers = std::move(answers)](const ReceivedRequest& request, Connection& connection) {
    const auto found = answers.find(request.target());
    connection.send(found == answers.end() ? answer("404 Not Found", "{}") : found->second);
  };
}

}  // namespace

std::string ReceivedRequest::target() const {
  const auto start = text.find(' ') + 1;
  return text.substr(start, text.find(' ', start) - start);
}

bool Connection::send(std::string_view bytes) {
  error_code error;
  asio::write(socket_, asio::buffer(bytes.data(), bytes.size()), error);
  return !error;
}

void Connection::pause(std::chrono::milliseconds time) const {
  const auto end = std::chrono::steady_clock::now() + time;
  while (!stopping_ && std::chrono::steady_clock::now() < end) {
    std::this_thread::sleep_for(lookInterval);
  }
}

void Connection::staySilent() {
  while (!stopping_ && !readable(socket_.native_handle(), lookInterval)) {
  }
}

void Connection::reset() {
  socket_.set_option(asio::socket_base::linger(true, 0));
  resets_ = true;
}

std::string okAnswer(std::string_view body) { return answer("200 OK", body); }

std::string answer(std::string_view status, std::string_view body, std::string_view extraHeader) {
  return "HTTP/1.1 " + std::string(status) + "\r\nContent-Type: application/json\r\n" +
         std::string(extraHeader) + "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" +
         std::string(body);
}

Backend::Backend(Handler handler, std::uint16_t port)
    : handler_(std::move(handler)),
      acceptor_(context_, tcp::endpoint(asio::ip::address_v4::loopback(), port)),
      port_(acceptor_.local_endpoint().port()),
      acceptThread_([this] { acceptAll(); }) {}

Backend::Backend(std::map<std::string, std::string> answers, std::uint16_t port)
    : Backend(fromTable(std::move(answers)), port) {}

Backend::~Backend() {
  stopping_ = true;
  acceptThread_.join();
  {
    const std::lock_guard lock(mutex_);
    for (auto& socket : sockets_) {
      // Wakes a thread that waits for its peer; the thread then closes the socket.
      shutdown(socket.native_handle(), SHUT_RDWR);
    }
  }
  for (auto& thread : connectionThreads_) {
    thread.join();
  }
}

std::vector<ReceivedRequest> Backend::requests() const {
  const std::lock_guard lock(mutex_);
  return requests_;
}

void Backend::acceptAll() {
  while (!stopping_) {
    if (!readable(acceptor_.native_handle(), lookInterval)) {
      continue;
    }
    error_code error;
    auto socket = acceptor_.accept(error);
    if (error) {
      continue;
    }
    ++connectionCount_;
    const std::lock_guard lock(mutex_);
    auto& kept = sockets_.emplace_back(std::move(socket));
    connectionThreads_.emplace_back([this, &kept] { serve(kept); });
  }
}

void Backend::serve(tcp::socket& socket) {
  asio::streambuf buffer;
  error_code error;
  bool orderly = true;
  const auto size = asio::read_until(socket, buffer, "\r\n\r\n", error);
  if (!error) {
    const auto* const first = static_cast<const char*>(buffer.data().data());
    ReceivedRequest request{std::string(first, size)};
    {
      const std::lock_guard lock(mutex_);
      requests_.push_back(request);
    }
    Connection connection(socket, stopping_);
    handler_(request, connection);
    orderly = !connection.resets();
  }
  error_code ignored;
  if (orderly) {
    socket.shutdown(tcp::socket::shutdown_both, ignored);
  }
  const std::lock_guard lock(mutex_);
  socket.close(ignored);
}

}  // namespace quillmark::test
