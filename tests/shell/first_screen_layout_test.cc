// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include <gtest/gtest.h>

#include "support/layout_checks.h"
#include "support/program_fixture.h"

namespace vmod17 {
namespace {

TEST(FirstScreenLayout, HasAPlaceForEachControlThatIsToBeSeen) {
  ProgramFixture p;
  p.ToFirstScreen();
  ExpectAPlaceForEachBut({&p.first().Kontrolle}, p.first());
}

TEST(FirstScreenLayout, IsSoundOnEveryPage) {
  ProgramFixture p;
  p.ToFirstScreen();
  ExpectASoundLayout(p.first());
}

}  // namespace
}  // namespace vmod17
