#include "online/FormSunucu.h"

#include "online/FormIpMac.h"
#include "online/OnlineTest.h"

namespace velora::test {

using FormSunucuTest = OnlineTest;

TEST_F(FormSunucuTest, The_key_of_the_computer_wins_over_the_file_and_the_mark_is_the_files) {
    agac.Koy(u"Sunucu.dat", "\"AA-BB-CC-DD-EE-FF\",0\r\n");
    EXPECT_EQ(program.FormSunucu->Text1.metin, u"00-1B-C4-0D-E0-9F");
    EXPECT_EQ(program.FormSunucu->Check1.deger, 0);
    EXPECT_TRUE(program.FormSunucu->Text1.kilitli) << "what is typed there would be lost";
}

TEST_F(FormSunucuTest, Without_a_file_that_can_be_read_the_mark_is_set) {
    for (const char* bayt : {"", "\"AA-BB-CC-DD-EE-FF\"\r\n", "\"AA-BB-CC-DD-EE-FF\",x\r\n"}) {
        agac.Koy(u"Sunucu.dat", bayt);
        EXPECT_EQ(program.FormSunucu->Check1.deger, 1) << bayt;
        EXPECT_EQ(program.FormSunucu->Text1.metin, u"00-1B-C4-0D-E0-9F") << bayt;
        program.FormSunucu.Bosalt();
    }
    std::filesystem::remove(agac.Yol(u"Sunucu.dat"));
    EXPECT_EQ(program.FormSunucu->Check1.deger, 1);
    EXPECT_EQ(program.FormSunucu->Text1.metin, u"00-1B-C4-0D-E0-9F");
}

TEST_F(FormSunucuTest, The_key_is_without_commas) {
    program.FormIpMac->Label1.baslik = u"A,B";
    EXPECT_EQ(program.FormSunucu->Text1.metin, u"AB");
}

TEST_F(FormSunucuTest, OK_writes_the_key_and_the_bare_number_and_unloads_the_screen) {
    agac.Koy(u"Sunucu.dat", "\"eski\",1\r\n");
    program.FormSunucu.Tut();
    Tikla(program.FormSunucu->Check1);
    VELORA_BAS(program.FormSunucu, Command1);
    EXPECT_EQ(agac.Bayt(u"Sunucu.dat"), "\"00-1B-C4-0D-E0-9F\",0\r\n");
    EXPECT_FALSE(program.FormSunucu.Yuklu());
    program.FormSunucu.Tut();
    Tikla(program.FormSunucu->Check1);
    VELORA_BAS(program.FormSunucu, Command1);
    EXPECT_EQ(agac.Bayt(u"Sunucu.dat"), "\"00-1B-C4-0D-E0-9F\",1\r\n");
}

TEST_F(FormSunucuTest, Close_writes_nothing) {
    program.FormSunucu.Tut();
    Tikla(program.FormSunucu->Check1);
    VELORA_BAS(program.FormSunucu, Command2);
    EXPECT_FALSE(agac.Var(u"Sunucu.dat"));
    EXPECT_FALSE(program.FormSunucu.Yuklu());
}

TEST_F(FormSunucuTest, A_disk_that_takes_nothing_is_no_hindrance) {
    program.dosyalar.ariza = [](DosyaIsi is, const Metin&) { return is == DosyaIsi::Yaz; };
    program.FormSunucu.Tut();
    VELORA_BAS(program.FormSunucu, Command1);
    EXPECT_FALSE(program.FormSunucu.Yuklu());
}

TEST_F(FormSunucuTest, The_controls_have_their_captions) {
    const auto ekran = program.FormSunucu.Tut();
    EXPECT_EQ(ekran->baslik, u"Web Sunucu Ayarları");
    EXPECT_EQ(ekran->Text1.baslik, u"Salon ID");
    EXPECT_EQ(ekran->Check1.baslik, u"Rezervasyonları otomatik webte yayınla");
    EXPECT_EQ(ekran->Command1.baslik, u"Tamam");
    EXPECT_EQ(ekran->Command2.baslik, u"Kapat");
}

} // namespace velora::test
