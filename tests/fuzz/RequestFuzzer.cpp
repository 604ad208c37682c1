// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <string>

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/string_body.hpp>

#include <sys/socket.h>
#include <unistd.h>

#include "HttpConversation.h"
#include "fuzz/Fuzzer.h"

namespace {

using namespace quillmark::fuzz;
using namespace quillmark::sample;
namespace asio = boost::asio;
namespace http = boost::beast::http;
using asio::ip::tcp;

constexpr std::string_view token = "0123456789abcdef";
const AnswerBodies bodies{R"({"of":"status"})", R"({"of":"alerts"})", R"({"of":"network"})",
                          R"({"of":"inventory"})"};

/// Everything that the server sends to a client that sends `bytes` and waits.
std::string answersTo(std::string_view bytes) {
  std::array<int, 2> ends{};
  require(socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) == 0, "there are sockets");
  const int client = ends[1];
  // Fits into the socket's buffer, so no other thread has to read it meanwhile.
  require(write(client, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()),
          "the request fits");
  shutdown(client, SHUT_WR);

  asio::io_context context(1);
  // In truth a Unix socket, which makes no difference to the functions called here.
  tcp::socket server(context, tcp::v4(), ends[0]);
  asio::co_spawn(
      context,
      serveRequest(server, 512,
                   [](const Request& request) { return answerTo(request, token, bodies); }),
      asio::detached);
  context.run();
  server.close();

  std::string answers;
  std::array<char, 4096> block{};
  ssize_t count = 0;
  while ((count = read(client, block.data(), block.size())) > 0) {
    answers.append(block.data(), static_cast<std::size_t>(count));
  }
  close(client);
  return answers;
}

bool isHead(std::string_view bytes) { return bytes.find("HEAD") != std::string_view::npos; }

void requireOneAnswer(const std::string& answers, std::string_view request) {
  http::response_parser<http::string_body> parser;
  parser.eager(true);
  parser.skip(isHead(request) && answers.ends_with("\r\n\r\n"));
  boost::system::error_code error;
  const auto used = parser.put(asio::buffer(answers), error);
  require(!error && parser.is_done() && used == answers.size(), "there is one answer");
  const auto& body = parser.get().body();
  const bool isData = body.starts_with(R"({"of":)");
  require(isData == (parser.get().result_int() == 200 && !body.empty()),
          "only status 200 has data");
  require(!isData || request.find(token) != std::string_view::npos, "data need the token");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto request = textOf(data, size);
  const auto answers = answersTo(request);
  if (!answers.empty()) {
    requireOneAnswer(answers, request);
  }
  return 0;
}
