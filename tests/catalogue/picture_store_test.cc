// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "catalogue/picture_store.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"

namespace vmod17 {
namespace {

int NumberRaised(PictureStore& store, int klang) {
  try {
    store.jakk(klang);
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(PictureStore, GivesNotationAndSymbolOfAKlang) {
  PictureStores stores;
  EXPECT_EQ(stores.bilder1.jakk(70), (PictureId{kNotation, 70}));
  EXPECT_EQ(stores.bilder1.jbez(1), (PictureId{kSymbol, 1}));
  EXPECT_EQ(stores.bilder2.jakk(71), (PictureId{kNotation, 71}));
  EXPECT_EQ(stores.bilder2.jbez(134), (PictureId{kSymbol, 134}));
}

TEST(PictureStore, HasBothPicturesForAllChords) {
  PictureStores stores;
  for (int klang = 1; klang <= 134; ++klang) {
    PictureStore& store = klang <= 70 ? stores.bilder1 : stores.bilder2;
    EXPECT_EQ(store.jakk(klang), (PictureId{kNotation, klang}));
    EXPECT_EQ(store.jbez(klang), (PictureId{kSymbol, klang}));
  }
}

TEST(PictureStore, HasNoPictureOfTheOtherHalf) {
  PictureStores stores;
  for (const int klang : {-1, 0, 71, 134}) {
    EXPECT_EQ(NumberRaised(stores.bilder1, klang), ErrorNumber::kOutOfRange) << klang;
  }
  for (const int klang : {0, 1, 70, 135}) {
    EXPECT_EQ(NumberRaised(stores.bilder2, klang), ErrorNumber::kOutOfRange) << klang;
  }
}

TEST(PictureStore, IsChosenByTheChordMaterial) {
  PictureStores stores;
  EXPECT_EQ(&stores.For(0), &stores.bilder1);
  EXPECT_EQ(&stores.For(1), &stores.bilder2);
}

TEST(PictureStore, IsLoadedOnTheFirstAccessAndNotBefore) {
  PictureStores stores;
  EXPECT_FALSE(stores.For(0).loaded());
  stores.For(0).jbez(12);
  EXPECT_TRUE(stores.bilder1.loaded());
  EXPECT_FALSE(stores.bilder2.loaded()) << "the other half is not touched";
}

TEST(PictureStore, IsLoadedAgainAfterItWasUnloaded) {
  PictureStores stores;
  stores.bilder2.jakk(100);
  stores.bilder2.Unload();
  EXPECT_FALSE(stores.bilder2.loaded());
  EXPECT_EQ(stores.bilder2.jakk(100), (PictureId{kNotation, 100}));
  EXPECT_TRUE(stores.bilder2.loaded());
}

}  // namespace
}  // namespace vmod17
