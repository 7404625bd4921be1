#include <gtest/gtest.h>

#include <algorithm>
#include <dlfcn.h>
#include <string>
#include <unistd.h>

#include "storage/DosyaAgaci.h"
#include "storage/dosya/Sistem.h"

namespace {

std::size_t enCokOkunan = 0; // bytes that one call gives; 0: what is asked for

} // namespace

// Takes the place of the system's own in this program: it may give less than there is.
extern "C" ssize_t read(int no, void* hedef, std::size_t adet) {
    static const auto asil =
        reinterpret_cast<ssize_t (*)(int, void*, std::size_t)>(::dlsym(RTLD_NEXT, "read"));
    return asil(no, hedef, enCokOkunan == 0 ? adet : std::min(adet, enCokOkunan));
}

namespace velora {

TEST(Kopyaci, A_read_that_gives_less_than_there_is_is_not_the_end_of_a_copy) {
    const test::GeciciAgac agac;
    std::string bayt;
    for (int i = 0; i < 1000; ++i)
        bayt += std::to_string(i) + "\r\n";
    agac.Koy(u"kaynak/a", bayt);
    agac.KlasorKoy(u"hedef");
    const sistem::Kopyaci kopyaci(agac.Yol(u"kaynak"), agac.Yol(u"hedef"), "yarim");
    enCokOkunan = 700;
    const bool oldu = kopyaci.Kopyala("a");
    enCokOkunan = 0;
    EXPECT_TRUE(oldu);
    EXPECT_EQ(agac.Bayt(u"hedef/a"), bayt);
    EXPECT_FALSE(agac.Var(u"hedef/yarim"));
}

TEST(Klasor, A_read_that_gives_less_than_there_is_is_not_the_end_of_a_file) {
    const test::DosyaAgaci agac;
    std::string bayt;
    for (int i = 0; i < 1000; ++i)
        bayt += std::to_string(i) + "\r\n";
    agac.Koy(u"yıl/a", bayt);
    agac.Koy(u"yıl/b", "kısa\r\n");
    std::vector<std::string> okunan;
    // Whatever a piece ends with: only the length tells.
    enCokOkunan = 512;
    agac.dosyalar.KlasoruOku(agac.TamYol(u"yıl"),
                             [&](const Dosyalar::OkunanDosya& dosya) { okunan.emplace_back(dosya.bayt); });
    enCokOkunan = 0;
    EXPECT_EQ(okunan, (std::vector<std::string>{bayt, "kısa\r\n"}));
}

} // namespace velora
