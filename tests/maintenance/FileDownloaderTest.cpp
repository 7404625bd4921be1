#include "maintenance/FileDownloader.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "destek/GeciciAgac.h"
#include "destek/SahteOrtam.h"
#include "screen/Program.h"

namespace velora::test {

namespace {

const Metin kAdres = u"http://site.test/x/dosya.dat";

Metin Basliklar(MetinBakis durum, MetinBakis boy) {
    Metin metin = u"HTTP/1.1 " + Metin(durum) + u"\r\nServer: a\r\n";
    if (!boy.empty())
        metin += u"content-LENGTH:  " + Metin(boy) + u" \r\n";
    return metin + u"\r\n";
}

} // namespace

class FileDownloaderTest : public ::testing::Test {
  protected:
    FileDownloaderTest() { Kur(); }

    void Kur() {
        indiren.emplace(program);
        indiren->olaylar.hata = [this](const Metin& metin) { Oldu(u"hata " + metin); };
        indiren->olaylar.durum = [this](const Metin& metin) { Oldu(u"durum " + metin); };
        indiren->olaylar.tamamlandi = [this] { Oldu(u"tamam"); };
        indiren->olaylar.ilerledi = [this](const Metin& yuzde) { Oldu(u"% " + yuzde); };
    }
    /// Notes an event; what is to happen within it follows.
    void Oldu(const Metin& olay) {
        olanlar.push_back(olay);
        if (const auto is = icinde)
            is(olay);
    }
    Metin Hedef(MetinBakis ad = u"Hedef.dat") const { return program.dosyalar.Kok() + u"\\" + Metin(ad); }
    bool Indir() { return indiren->DownloadFile(kAdres, Hedef()); }
    using Olanlar = std::vector<Metin>;

    GeciciAgac agac;
    SahteOrtam ortam{Gun{std::chrono::year{2012}, std::chrono::month{6}, std::chrono::day{15}}};
    Program program{ortam.Ver(), agac.Kok()};
    std::optional<FileDownloader> indiren;
    Olanlar olanlar;
    std::function<void(const Metin&)> icinde;
};

TEST_F(FileDownloaderTest, A_whole_file_comes_in_chunks_byte_for_byte_with_either_status_of_success) {
    const std::string uzun(1024, 'x');
    const std::string son("\0\xFF\r\n twelve", 11);
    for (const MetinBakis durum : {u"200 OK", u"206 Partial Content"}) {
        olanlar.clear();
        ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(durum, u"1535"), {uzun, uzun.substr(0, 500), son}});
        EXPECT_TRUE(Indir());
        EXPECT_EQ(olanlar,
                  (Olanlar{u"durum Getting file information", u"% 67", u"% 99", u"% 100", u"tamam"}));
        EXPECT_EQ(agac.Oku(u"Hedef.dat"), std::string(1524, 'x') + son);
        agac.Koy(u"Hedef.dat", "");
    }
}

TEST_F(FileDownloaderTest, The_percentage_is_rounded_and_events_run_behind_each_chunk) {
    ortam.Bekle(BeklenenAktarim{kAdres,
                                Basliklar(u"200 OK", u"300"),
                                {std::string(2, 'a'), std::string(97, 'b'), std::string(201, 'c')}});
    EXPECT_TRUE(Indir());
    EXPECT_EQ(olanlar, (Olanlar{u"durum Getting file information", u"% 1", u"% 33", u"% 100", u"tamam"}));
    EXPECT_EQ(ortam.olaySayisi, 3);
    EXPECT_EQ(agac.Oku(u"Hedef.dat"), std::string(2, 'a') + std::string(97, 'b') + std::string(201, 'c'));
}

TEST_F(FileDownloaderTest, The_request_asks_for_the_range_from_0_on_and_may_carry_a_user) {
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"206 Partial Content", u"1"), {"z"}});
    indiren->verisizSure = 7;
    EXPECT_TRUE(indiren->DownloadFile(kAdres, Hedef(), u"ayşe", u"gizli"));
    ASSERT_EQ(ortam.aktarimlar.size(), 1U);
    const AktarimIstegi& istek = ortam.aktarimlar.front();
    EXPECT_EQ(istek.basliklar, std::vector<Metin>{u"Range: bytes=0-"});
    EXPECT_EQ(istek.kullanici, u"ayşe");
    EXPECT_EQ(istek.parola, u"gizli");
    EXPECT_EQ(istek.verisizSure, 7);
    EXPECT_GE(ortam.birakilanAktarim, 1) << "the transfer is cancelled at the end of every run";
}

TEST_F(FileDownloaderTest, Each_status_that_is_no_success_has_its_text_and_leaves_an_older_file) {
    agac.Koy(u"Hedef.dat", "eski");
    const std::vector<std::pair<Metin, Metin>> durumlar{
        {Basliklar(u"204 No Content", u"4"), u"Nothing to download!"},
        {Basliklar(u"401 Unauthorized", u"4"), u"Authorization failed!"},
        {Basliklar(u"404 Not Found", u"4"), u"The file, \"" + kAdres + u"\" was not found!"},
        {Basliklar(u"302 Found", u"4"), u"The server returned the following response:\r\rHTTP/1.1 302 Found"},
        {Basliklar(u"500 Oops", u"4"), u"The server returned the following response:\r\rHTTP/1.1 500 Oops"},
        {u"HTTP/1.1 \r\n", u"Cannot establish connection."},
        {u"", u"The server returned the following response:\r\r<nothing>"}};
    for (const auto& [basliklar, metin] : durumlar) {
        olanlar.clear();
        ortam.Bekle(BeklenenAktarim{kAdres, basliklar, {"OKEY"}});
        EXPECT_FALSE(Indir());
        EXPECT_EQ(olanlar, (Olanlar{u"durum Getting file information", u"hata " + metin}));
        EXPECT_EQ(agac.Oku(u"Hedef.dat"), "eski");
    }
}

TEST_F(FileDownloaderTest, A_length_of_0_or_of_none_ends_without_an_event_on_purpose) {
    agac.Koy(u"Hedef.dat", "eski");
    for (const MetinBakis boy : {u"0", u"", u"-3", u"12a", u"99999999999999999999999"}) {
        olanlar.clear();
        ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", boy), {"abc"}});
        EXPECT_FALSE(Indir());
        EXPECT_EQ(olanlar, Olanlar{u"durum Getting file information"});
        EXPECT_EQ(agac.Oku(u"Hedef.dat"), "eski");
    }
}

TEST_F(FileDownloaderTest, A_length_of_0_behind_a_whole_file_is_no_whole_file_again) {
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"3"), {"abc"}});
    ASSERT_TRUE(Indir());
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"0")});
    olanlar.clear();
    EXPECT_FALSE(Indir());
    EXPECT_EQ(olanlar, Olanlar{u"durum Getting file information"});
}

TEST_F(FileDownloaderTest, A_disk_without_room_is_told_before_a_byte_is_fetched) {
    agac.Koy(u"Hedef.dat", "eski");
    program.dosyalar.bosYer = 9;
    ortam.Bekle(BeklenenAktarim{
        kAdres, Basliklar(u"200 OK", u"10"), {}, [](std::size_t sira) { EXPECT_EQ(sira, 0U); }});
    EXPECT_FALSE(Indir());
    EXPECT_EQ(olanlar.back(), u"hata There is not enough free space on disk for this file.");
    EXPECT_EQ(olanlar.size(), 2U);
    EXPECT_EQ(agac.Oku(u"Hedef.dat"), "eski");
    program.dosyalar.bosYer = 10;
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"10"), {"0123456789"}});
    EXPECT_TRUE(Indir());
}

TEST_F(FileDownloaderTest, A_disk_without_room_gets_no_folder_either) {
    program.dosyalar.bosYer = 9;
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"10"), {"0123456789"}});
    EXPECT_FALSE(indiren->DownloadFile(kAdres, Hedef(u"Yeni Klasör\\x.dat")));
    EXPECT_EQ(olanlar.back(), u"hata There is not enough free space on disk for this file.");
    EXPECT_FALSE(agac.KlasorVar(u"Yeni Klasör"));
}

TEST_F(FileDownloaderTest, A_missing_folder_is_made) {
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"2"), {"ab"}});
    EXPECT_TRUE(indiren->DownloadFile(kAdres, Hedef(u"Yeni Klasör\\x.dat")));
    EXPECT_EQ(agac.Oku(u"Yeni Klasör/x.dat"), "ab");
}

TEST_F(FileDownloaderTest, A_longer_old_file_leaves_no_tail) {
    agac.Koy(u"Hedef.dat", "a much longer file");
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"3"), {"yen"}});
    EXPECT_TRUE(Indir());
    EXPECT_EQ(agac.Oku(u"Hedef.dat"), "yen");
}

TEST_F(FileDownloaderTest, A_connection_lost_in_the_middle_is_told_and_leaves_no_file) {
    agac.Koy(u"Hedef.dat", "eski");
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"8"), {"abc", "de"}, [&](std::size_t sira) {
                                    if (sira == 2) {
                                        EXPECT_EQ(agac.Oku(u"Hedef.dat"), "abc");
                                    }
                                }});
    EXPECT_FALSE(Indir());
    EXPECT_EQ(olanlar, (Olanlar{u"durum Getting file information", u"% 38", u"% 63",
                                u"hata The connection with the server was reset."}));
    EXPECT_FALSE(agac.Var(u"Hedef.dat"));
}

TEST_F(FileDownloaderTest, More_than_was_announced_is_no_whole_file) {
    ortam.Bekle(
        BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"4"), {"abcd", "e", "f", "g"}, [](std::size_t sira) {
                            EXPECT_LE(sira, 2U) << "it ends with the first byte too much";
                        }});
    EXPECT_FALSE(Indir());
    EXPECT_EQ(olanlar.back(), u"hata The connection with the server was reset.");
    EXPECT_FALSE(agac.Var(u"Hedef.dat"));
}

TEST_F(FileDownloaderTest, A_disk_that_gets_full_or_bad_in_the_middle_ends_it_and_leaves_no_file) {
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"6"), {"abc", "def"}, [&](std::size_t sira) {
                                    if (sira == 2)
                                        program.dosyalar.ariza = [](DosyaIsi is, const Metin&) {
                                            return is == DosyaIsi::Yaz;
                                        };
                                }});
    EXPECT_FALSE(Indir());
    EXPECT_EQ(olanlar, (Olanlar{u"durum Getting file information", u"% 50",
                                u"hata The connection with the server was reset."}));
    EXPECT_FALSE(agac.Var(u"Hedef.dat"));
}

TEST_F(FileDownloaderTest, A_target_that_cannot_be_opened_is_told_and_stays) {
    agac.KlasorKoy(u"Hedef.dat");
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"3"), {"abc"}});
    EXPECT_FALSE(Indir());
    EXPECT_EQ(olanlar.back(), u"hata The connection with the server was reset.");
    EXPECT_TRUE(agac.KlasorVar(u"Hedef.dat"));
}

TEST_F(FileDownloaderTest, Cancel_ends_it_wherever_it_waits_without_an_event_or_a_file) {
    for (const std::size_t yer : {0U, 1U, 2U}) {
        agac.Koy(u"Hedef.dat", "eski");
        ortam.Bekle(
            BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"6"), {"abc", "def"}, [&](std::size_t sira) {
                                EXPECT_LE(sira, yer);
                                olanlar.clear();
                                if (sira == yer)
                                    indiren->Cancel();
                            }});
        EXPECT_FALSE(Indir());
        EXPECT_EQ(olanlar, Olanlar{}) << yer;
        EXPECT_EQ(agac.Oku(u"Hedef.dat"), yer == 0 ? std::optional<std::string>("eski") : std::nullopt)
            << "only what this run has opened goes";
    }
}

TEST_F(FileDownloaderTest, Cancel_among_the_events_behind_a_chunk_ends_it) {
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"6"), {"abc", "def"}});
    ortam.olayda = [&](int) { indiren->Cancel(); };
    EXPECT_FALSE(Indir());
    EXPECT_EQ(olanlar, (Olanlar{u"durum Getting file information", u"% 50"}));
    EXPECT_FALSE(agac.Var(u"Hedef.dat"));
}

TEST_F(FileDownloaderTest, Cancel_behind_the_last_chunk_keeps_the_whole_file_and_raises_nothing) {
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"6"), {"abc", "def"}});
    icinde = [&](const Metin& olay) {
        if (olay == u"% 100")
            indiren->Cancel();
    };
    EXPECT_TRUE(Indir());
    EXPECT_EQ(olanlar.back(), u"% 100");
    EXPECT_EQ(agac.Oku(u"Hedef.dat"), "abcdef");
    indiren->Cancel();
    EXPECT_EQ(agac.Oku(u"Hedef.dat"), "abcdef") << "nothing goes on that could be stopped";
}

TEST_F(FileDownloaderTest, The_component_may_go_in_any_of_its_events) {
    for (const MetinBakis olay : {u"durum Getting file information", u"% 50", u"% 100", u"tamam"}) {
        Kur();
        const bool baslamadan = olay.starts_with(u"durum");
        if (!baslamadan)
            ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"6"), {"abc", "def"}});
        icinde = [&](const Metin& olan) {
            if (olan == olay)
                indiren.reset();
        };
        EXPECT_EQ(Indir(), olay == u"tamam" || olay == u"% 100");
        EXPECT_EQ(olanlar.back(), olay);
        EXPECT_FALSE(indiren);
        agac.Koy(u"Hedef.dat", "");
    }
}

TEST_F(FileDownloaderTest, The_component_may_go_while_it_fails) {
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"6"), {"abc"}});
    icinde = [&](const Metin& olan) {
        if (olan.starts_with(u"hata"))
            indiren.reset();
    };
    EXPECT_FALSE(Indir());
    EXPECT_FALSE(indiren);
    EXPECT_FALSE(agac.Var(u"Hedef.dat"));
}

TEST_F(FileDownloaderTest, One_that_begins_within_another_gives_that_one_up_and_owns_the_file) {
    const Metin oteki = u"http://site.test/oteki";
    bool icteki = false;
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"6"), {"abc", "def"}, [&](std::size_t sira) {
                                    ASSERT_LT(sira, 3U);
                                    if (sira < 2)
                                        return;
                                    ortam.Bekle(BeklenenAktarim{oteki, Basliklar(u"200 OK", u"2"), {"yz"}});
                                    icteki = indiren->DownloadFile(oteki, Hedef());
                                }});
    EXPECT_FALSE(Indir());
    EXPECT_TRUE(icteki);
    EXPECT_EQ(agac.Oku(u"Hedef.dat"), "yz");
    EXPECT_EQ(olanlar, (Olanlar{u"durum Getting file information", u"% 50", u"durum Getting file information",
                                u"% 100", u"tamam"}));
}

TEST_F(FileDownloaderTest, One_can_begin_within_the_error_of_another) {
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"6"), {"abc"}});
    icinde = [&](const Metin& olay) {
        if (!olay.starts_with(u"hata"))
            return;
        icinde = {};
        ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"6"), {"uvwxyz"}});
        EXPECT_TRUE(Indir());
    };
    EXPECT_FALSE(Indir());
    EXPECT_EQ(agac.Oku(u"Hedef.dat"), "uvwxyz");
}

TEST_F(FileDownloaderTest, A_handler_that_throws_leaves_no_file_and_no_transfer) {
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"6"), {"abc", "def"}});
    icinde = [](const Metin& olay) {
        if (olay == u"% 50")
            throw std::runtime_error("x");
    };
    EXPECT_THROW(Indir(), std::runtime_error);
    EXPECT_FALSE(agac.Var(u"Hedef.dat"));
    EXPECT_EQ(ortam.birakilanAktarim, 1);
}

// The program never asks for this.
TEST_F(FileDownloaderTest, One_that_goes_on_steps_back_and_keeps_what_stands_before) {
    agac.Koy(u"Hedef.dat", std::string(4100, 'x') + "a tail");
    indiren->devam = FileDownloader::Kalan{4098, 5};
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"206 Partial Content", u"3"), {"abc"}});
    EXPECT_TRUE(Indir());
    EXPECT_EQ(ortam.aktarimlar.back().basliklar, std::vector<Metin>{u"Range: bytes=2-"});
    EXPECT_EQ(olanlar.front(), u"durum Resuming download");
    EXPECT_EQ(agac.Oku(u"Hedef.dat"), "xxabc");
    indiren->devam = FileDownloader::Kalan{3, 9};
    ortam.Bekle(BeklenenAktarim{kAdres, Basliklar(u"200 OK", u"9"), {"abc"}});
    EXPECT_FALSE(Indir());
    EXPECT_EQ(ortam.aktarimlar.back().basliklar, std::vector<Metin>{u"Range: bytes=0-"});
    EXPECT_EQ(olanlar.back(), u"hata The server is unable to resume this download.");
    EXPECT_FALSE(agac.Var(u"Hedef.dat"));
}

} // namespace velora::test
