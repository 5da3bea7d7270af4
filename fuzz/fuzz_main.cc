// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "fuzz_main.h"

#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace vmod17 {
namespace {

constexpr std::uint64_t kCasesOfALine = 10'000;

/// The case at work, for what ends the program from below.
std::uint64_t g_seed = 0;
std::uint64_t g_case = 0;

void SayCase() {
  std::fprintf(stderr, "seed %llu, case %llu\n", static_cast<unsigned long long>(g_seed),
               static_cast<unsigned long long>(g_case));
}

extern "C" void OnAlarm(int) {
  constexpr char kHangs[] = "a case hangs\n";
  static_cast<void>(!write(STDERR_FILENO, kHangs, sizeof kHangs - 1));
  SayCase();
  std::signal(SIGABRT, SIG_DFL);
  std::abort();
}

extern "C" void OnCrash(int signal) {
  std::fprintf(stderr, "ended by signal %d\n", signal);
  SayCase();
  _exit(EXIT_FAILURE);
}

std::uint64_t Argument(int argc, char* argv[], int i, std::uint64_t otherwise) {
  return argc > i ? std::strtoull(argv[i], nullptr, 10) : otherwise;
}

}  // namespace

void Fault(const std::string& what) { throw std::logic_error(what); }

void Demand(bool holds, const char* what) {
  if (!holds) Fault(what);
}

int Fuzz(int argc, char* argv[], const FuzzProgram& program) {
  g_seed = Argument(argc, argv, 1, 1);
  const std::uint64_t count = Argument(argc, argv, 2, 100'000);
  const std::uint64_t first = Argument(argc, argv, 3, 0);
  std::signal(SIGALRM, OnAlarm);
  std::signal(SIGABRT, OnCrash);  // an assertion, or what nobody caught
#ifdef __SANITIZE_ADDRESS__
  __sanitizer_set_death_callback(SayCase);
#else
  for (const int signal : {SIGSEGV, SIGBUS, SIGFPE}) std::signal(signal, OnCrash);
#endif
  const auto start = std::chrono::steady_clock::now();
  for (g_case = first; g_case < first + count; ++g_case) {
    alarm(static_cast<unsigned>(program.seconds_for_a_case));
    Dice dice(g_seed, g_case);
    try {
      program.run_case(dice);
    } catch (const std::exception& fault) {
      SayCase();
      std::fprintf(stderr, "%s\n", fault.what());
      return EXIT_FAILURE;
    }
    if ((g_case + 1 - first) % kCasesOfALine == 0) SayCase();
  }
  alarm(0);
  const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
  std::printf("seed %llu, %llu cases in %.1f s\n", static_cast<unsigned long long>(g_seed),
              static_cast<unsigned long long>(count), passed.count());
  program.print();
  return EXIT_SUCCESS;
}

}  // namespace vmod17
