// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "soak/SteadyAgent.h"

#include <csignal>
#include <system_error>

#include <boost/asio/buffer.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/read_until.hpp>
#include <boost/asio/write.hpp>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/Backend.h"
#include "support/Bodies.h"

namespace quillmark::test {
namespace {

namespace asio = boost::asio;
using asio::ip::tcp;

std::string targetOf(const std::string& request) {
  const auto begin = request.find(' ') + 1;
  return request.substr(begin, request.find(' ', begin) - begin);
}

[[noreturn]] void serve(tcp::acceptor& acceptor, const std::vector<PollAnswers>& answers) {
  std::size_t polls = 0;
  for (;;) {
    boost::system::error_code error;
    tcp::socket socket = acceptor.accept(error);
    std::string request;
    asio::read_until(socket, asio::dynamic_buffer(request), "\r\n\r\n", error);
    if (error) {
      continue;
    }
    const auto target = targetOf(request);
    if (target == "/api/status") {
      ++polls;
    }
    asio::write(socket, asio::buffer(answers[polls % answers.size()].at(target)), error);
  }
}

std::string listOf(const char* key, int count, const std::string& entry) {
  std::string entries;
  for (int index = 0; index < count; ++index) {
    entries += (index == 0 ? "" : ",") + entry;
  }
  return std::string("{\"") + key + "\":[" + entries + "]}";
}

PollAnswers answersOf(int rows, const std::string& word) {
  auto answers = goodAnswers();
  answers["/api/alerts"] = okAnswer(listOf(
      "alerts", rows,
      R"({"alert_type":"malware )" + word + R"(","severity":"high","description":"found"})"));
  answers["/api/network"] = okAnswer(networkBodyOf(rows, word));
  return answers;
}

}  // namespace

std::vector<PollAnswers> changingAnswers() {
  return {answersOf(20, "LISTEN"), answersOf(60, "WAIT")};
}

SteadyAgent::SteadyAgent(const std::vector<PollAnswers>& answers) {
  asio::io_context context;
  tcp::acceptor acceptor(context, {asio::ip::address_v4::loopback(), Backend::agentPort});
  pid_ = fork();
  if (pid_ < 0) {
    throw std::system_error(errno, std::generic_category(), "fork");
  }
  if (pid_ == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    serve(acceptor, answers);
  }
}

SteadyAgent::~SteadyAgent() {
  kill(pid_, SIGKILL);
  waitpid(pid_, nullptr, 0);
}

}  // namespace quillmark::test
