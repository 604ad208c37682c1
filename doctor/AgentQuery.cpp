// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "AgentQuery.h"

#include <exception>
#include <utility>

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/io_context.hpp>

#include "client/AgentUrl.h"

namespace quillmark::doctor {

std::vector<QueryResult> queryAgent(const std::string& token,
                                    const std::vector<std::string_view>& paths) {
  using Clock = std::chrono::steady_clock;
  std::vector<QueryResult> all;
  all.reserve(paths.size());  // References to the elements must stay valid.
  boost::asio::io_context context(1);
  const auto start = Clock::now();

  for (const auto path : paths) {
    auto request = requestTo(agentBaseUrl + std::string(path)).value();
    request.method = "GET";
    request.token = token;
    auto store = [&query = all.emplace_back(), start](const std::exception_ptr& failure,
                                                      HttpResult result) {
      query.duration = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);
      if (failure) {
        std::rethrow_exception(failure);
      }
      query.result = std::move(result);
    };
    boost::asio::co_spawn(context, exchange(std::move(request), {}), std::move(store));
  }
  context.run_for(queryTimeout);
  return all;
}

}  // namespace quillmark::doctor
