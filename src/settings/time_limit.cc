// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "settings/time_limit.h"

#include "base/numbers.h"
#include "ports/event_loop.h"

namespace vmod17 {
namespace {

constexpr int kHoerenJeKlang = 4;
constexpr int kSekundenJeAntwort = 2;
constexpr int kLaengste = 600;  // seconds
constexpr int kKuerzeste = 180;
constexpr int kMs = 1000;

int Gerade(int aufgaben) { return aufgaben + aufgaben % 2; }

}  // namespace

int TestdauerRechnen(const TestVorgabe& vorgabe, int test_aufgaben) {
  const int sekunden = vorgabe.spiel_ms * test_aufgaben / kMs +
                       vorgabe.wahl_ms * test_aufgaben / kMs +
                       test_aufgaben * vorgabe.akk_anzahl * kSekundenJeAntwort;
  return (sekunden + 9) / 10 * 10;
}

TestRest BemissTest(const TestVorgabe& vorgabe) {
  const int klaenge = vorgabe.mat_posten * kHoerenJeKlang;
  TestRest test;
  test.test_aufgaben = Gerade((klaenge + vorgabe.akk_anzahl - 1) / vorgabe.akk_anzahl);
  test.rest_sek = TestdauerRechnen(vorgabe, test.test_aufgaben);
  const auto nimm = [&](int viertel) {
    test.test_aufgaben = Gerade(RoundHalfEven(test.test_aufgaben / 4.0 * viertel));
    test.rest_sek = TestdauerRechnen(vorgabe, test.test_aufgaben);
  };
  if (test.rest_sek > kLaengste) {
    nimm(3);
  } else if (test.rest_sek < kKuerzeste) {
    nimm(6);
  }
  test.rest_aufgaben = test.test_aufgaben;
  return test;
}

void TestRest::HalteAn(float uhr) {
  if (!halt_seit) halt_seit = uhr;
}

void TestRest::SetzeFort(float uhr) {
  if (!halt_seit) return;
  gutschrift += ClockDifference(*halt_seit, uhr);
  halt_seit.reset();
}

bool TestRest::Zaehle(int sekunden) {
  if (halt_seit || gutschrift > 0) {
    gutschrift -= static_cast<float>(sekunden);
    return false;
  }
  rest_sek -= sekunden;
  return true;
}

}  // namespace vmod17
