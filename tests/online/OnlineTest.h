#pragma once

#include <gtest/gtest.h>

#include "access/Splash.h"
#include "destek/Eylemler.h"
#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"
#include "screen/Surum.h"

namespace velora::test {

/// A program on 5 March 2012 whose firm has a place of the service, and a computer with an address.
class OnlineTest : public ::testing::Test {
  protected:
    OnlineTest() {
        agac.Koy(u"Adresler.dat",
                 "\"http://servis.test/x\",\"http://site.test/\",\"http://yardim.test/\",\"Satir\"\r\n");
    }

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{3}, std::chrono::day{5}}};
    Program program{ortam.Ver(), agac.Kok()};
};

} // namespace velora::test
