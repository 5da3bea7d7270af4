// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <atomic>
#include <chrono>
#include <deque>
#include <list>
#include <string>
#include <thread>
#include <vector>

namespace vmod17 {

/// A port of this machine behind which a server is reached that listens on a socket in the file
/// system, over a road as bad as is wanted.
class ServerProxy {
 public:
  explicit ServerProxy(std::string server);
  ~ServerProxy();
  ServerProxy(const ServerProxy&) = delete;
  ServerProxy& operator=(const ServerProxy&) = delete;

  int port() const { return port_; }
  /// How long everything takes in each direction from now on; a new connection takes a way to and
  /// fro before its first byte.
  void Delay(std::chrono::milliseconds one_way) { delay_ms_ = static_cast<int>(one_way.count()); }
  /// After so many bytes of a connection that it has brought, in both directions together, the road
  /// swallows everything and says nothing of it. Below 0: never.
  void SwallowAfter(long bytes) { swallow_after_ = bytes; }
  /// New connections end after that time; until then they bring nothing. Below 0: they stay.
  void HangUpAfter(std::chrono::milliseconds time) { hang_up_ms_ = static_cast<int>(time.count()); }
  /// How many connections there were.
  int Connections() const { return connections_; }
  /// How often the client has spoken and then waited for the server.
  int RoundTrips() const { return round_trips_; }

 private:
  using Clock = std::chrono::steady_clock;
  struct Parcel {
    Clock::time_point due;
    std::vector<char> bytes;
  };
  struct Road {
    int client = -1;
    int server = -1;
    long carried = 0;
    bool client_spoke = false;
    std::deque<Parcel> to_server;
    std::deque<Parcel> to_client;
    Clock::time_point open_from;
    Clock::time_point open_until = Clock::time_point::max();
    bool ended = false;
  };

  void Work();
  void Accept();
  void Take(Road& road, int from, std::deque<Parcel>& parcels);
  bool Deliver(Road& road, int to, std::deque<Parcel>& parcels);

  const std::string server_;
  int listener_ = -1;
  int port_ = 0;
  std::atomic<int> delay_ms_ = 0;
  std::atomic<long> swallow_after_ = -1;
  std::atomic<int> hang_up_ms_ = -1;
  std::atomic<int> connections_ = 0;
  std::atomic<int> round_trips_ = 0;
  std::atomic<bool> ended_ = false;
  std::list<Road> roads_;
  std::thread thread_;
};

}  // namespace vmod17
