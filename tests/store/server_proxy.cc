// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "server_proxy.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace vmod17 {

ServerProxy::ServerProxy(std::string server) : server_(std::move(server)) {
  listener_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in place{};
  place.sin_family = AF_INET;
  place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t length = sizeof place;
  auto* const address = reinterpret_cast<sockaddr*>(&place);
  if (::bind(listener_, address, length) != 0 || ::listen(listener_, 50) != 0 ||
      ::getsockname(listener_, address, &length) != 0) {
    throw std::runtime_error("no port for the proxy");
  }
  port_ = ntohs(place.sin_port);
  thread_ = std::thread([this] { Work(); });
}

ServerProxy::~ServerProxy() {
  ended_ = true;
  thread_.join();
  ::close(listener_);
  for (const Road& road : roads_) {
    ::close(road.client);
    ::close(road.server);
  }
}

void ServerProxy::Work() {
  while (!ended_) {
    std::vector<pollfd> sources = {{listener_, POLLIN, 0}};
    for (const Road& road : roads_) {
      sources.push_back({road.client, POLLIN, 0});
      sources.push_back({road.server, POLLIN, 0});
    }
    ::poll(sources.data(), sources.size(), 1);
    std::size_t i = 1;
    for (Road& road : roads_) {
      if (sources[i++].revents != 0) Take(road, road.client, road.to_server);
      if (sources[i++].revents != 0) Take(road, road.server, road.to_client);
      if (!Deliver(road, road.server, road.to_server)) road.ended = true;
      if (!Deliver(road, road.client, road.to_client)) road.ended = true;
      if (Clock::now() >= road.open_until) road.ended = true;
    }
    roads_.remove_if([](const Road& road) {
      if (!road.ended) return false;
      ::close(road.client);
      ::close(road.server);
      return true;
    });
    if (sources[0].revents != 0) Accept();
  }
}

void ServerProxy::Accept() {
  Road road;
  road.client = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
  if (road.client < 0) return;
  const int yes = 1;
  ::setsockopt(road.client, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
  road.server = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_un place{};
  place.sun_family = AF_UNIX;
  server_.copy(place.sun_path, sizeof place.sun_path - 1);
  if (::connect(road.server, reinterpret_cast<const sockaddr*>(&place), sizeof place) != 0) {
    ::close(road.client);
    ::close(road.server);
    return;
  }
  ++connections_;
  road.open_from = Clock::now() + std::chrono::milliseconds(2 * delay_ms_);
  if (hang_up_ms_ >= 0) {
    road.open_until = Clock::now() + std::chrono::milliseconds(hang_up_ms_);
    road.open_from = road.open_until;
  }
  roads_.push_back(std::move(road));
}

void ServerProxy::Take(Road& road, int from, std::deque<Parcel>& parcels) {
  std::array<char, 65536> bytes;
  const ssize_t count = ::recv(from, bytes.data(), bytes.size(), MSG_DONTWAIT);
  const Clock::time_point due =
      std::max(Clock::now(), road.open_from) + std::chrono::milliseconds(delay_ms_);
  // An empty parcel brings the end.
  if (count <= 0) {
    if (parcels.empty() || !parcels.back().bytes.empty()) parcels.push_back({due, {}});
    return;
  }
  parcels.push_back({due, {bytes.begin(), bytes.begin() + count}});
  const bool client_speaks = from == road.client;
  if (client_speaks && !road.client_spoke) ++round_trips_;
  road.client_spoke = client_speaks;
}

bool ServerProxy::Deliver(Road& road, int to, std::deque<Parcel>& parcels) {
  while (!parcels.empty() && parcels.front().due <= Clock::now()) {
    const Parcel parcel = std::move(parcels.front());
    parcels.pop_front();
    const long left = swallow_after_ < 0 ? -1 : std::max(0L, swallow_after_ - road.carried);
    std::size_t count = parcel.bytes.size();
    if (left >= 0) {
      count = std::min(count, static_cast<std::size_t>(left));
      if (count == 0) continue;
    }
    if (count == 0) return false;
    road.carried += static_cast<long>(count);
    if (::send(to, parcel.bytes.data(), count, MSG_NOSIGNAL) < 0) return false;
  }
  return true;
}

}  // namespace vmod17
