// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "lint/sources.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace vmod17::lint {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

TEST(Heads, NameOwnerAndLicenceAndIncludeOnce) {
  const std::string head =
      "// SPDX-FileCopyrightText: 2026 The Melvado authors\n"
      "// SPDX-License-Identifier: Apache-2.0\n\n";
  EXPECT_THAT(HeadFaults({{"src/a.h", head + "#pragma once\n"}, {"src/a.cc", head}}), IsEmpty());
  EXPECT_THAT(HeadFaults({{"src/a.h", head}}), ElementsAre(HasSubstr("#pragma once")));
  EXPECT_THAT(HeadFaults({{"src/a.cc", ""}}), SizeIs(2));
  EXPECT_THAT(HeadFaults({{"tests/CMakeLists.txt", "\n\n\n\n\n" + head}}), SizeIs(2));
}

TEST(Types, HaveTheirNameForThemselvesInTheirNamespace) {
  const std::string device = "namespace vmod17 {\nstruct Device {\n";
  EXPECT_THAT(TypeFaults({{"src/a.h", device}, {"src/b.cc", device}, {"tests/b.h", device}}),
              IsEmpty());
  EXPECT_THAT(TypeFaults({{"src/a.h", device},
                          {"src/b.h", "namespace vmod17 {\nclass Device;\nstruct Devices {};\n"},
                          {"src/c.h", "namespace vmod17::lint {\nstruct Device {};\n"}}),
              IsEmpty());
  for (const char* type : {"class Device : public Thing {", "enum class Device { kOne };"}) {
    EXPECT_THAT(TypeFaults({{"src/a.h", device},
                            {"src/b.h", std::string("namespace vmod17 {\n") + type + "\n"}}),
                ElementsAre("src/b.h:2: vmod17::Device is also in src/a.h"))
        << type;
  }
}

}  // namespace
}  // namespace vmod17::lint
