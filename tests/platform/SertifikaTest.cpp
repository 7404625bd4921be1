// A service over https whose certificate nobody has signed.
#include <array>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <string>

#include <curl/curl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "destek/GeciciAgac.h"
#include "platform/AgTest.h"

namespace velora::test {

namespace {

/// `openssl s_server` on the loopback, with a certificate made for it. It ends with its test.
class HttpsSunucu {
  public:
    explicit HttpsSunucu(const std::filesystem::path& klasor)
        : sertifika_((klasor / "s.pem").string()), anahtar_((klasor / "k.pem").string()) {
        const std::string yap =
            "openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=127.0.0.1 -addext "
            "subjectAltName=IP:127.0.0.1 -keyout '" +
            anahtar_ + "' -out '" + sertifika_ + "' 2>/dev/null";
        int boru[2];
        if (std::system(yap.c_str()) != 0 || pipe(boru) != 0)
            return;
        cocuk_ = fork();
        if (cocuk_ == 0) {
            dup2(boru[1], STDOUT_FILENO);
            prctl(PR_SET_PDEATHSIG, SIGTERM);
            execlp("openssl", "openssl", "s_server", "-accept", "127.0.0.1:0", "-www", "-cert",
                   sertifika_.c_str(), "-key", anahtar_.c_str(), static_cast<char*>(nullptr));
            _exit(127);
        }
        close(boru[1]);
        cikti_ = fdopen(boru[0], "r");
        std::array<char, 256> satir{};
        while (port_.empty() && std::fgets(satir.data(), satir.size(), cikti_) != nullptr)
            if (const std::string yazi(satir.data()); yazi.starts_with("ACCEPT "))
                port_ = yazi.substr(yazi.rfind(':') + 1, yazi.find_last_of("0123456789") - yazi.rfind(':'));
    }
    ~HttpsSunucu() {
        if (cocuk_ <= 0)
            return;
        kill(cocuk_, SIGTERM);
        waitpid(cocuk_, nullptr, 0);
        std::fclose(cikti_);
    }
    HttpsSunucu(const HttpsSunucu&) = delete;
    HttpsSunucu& operator=(const HttpsSunucu&) = delete;

    /// "https://127.0.0.1:port/"; empty when it doesn't run.
    std::string Adres() const { return port_.empty() ? port_ : "https://127.0.0.1:" + port_ + "/"; }
    const std::string& Sertifika() const { return sertifika_; }

  private:
    std::string sertifika_;
    std::string anahtar_;
    std::string port_;
    pid_t cocuk_ = -1;
    std::FILE* cikti_ = nullptr; // open as long as it may write
};

std::size_t Yut(const char* /*bayt*/, std::size_t bir, std::size_t adet, void* /*kimse*/) {
    return bir * adet;
}

/// The status that somebody gets who believes this certificate.
long GuveneninDurumu(const HttpsSunucu& sunucu) {
    CURL* kol = curl_easy_init();
    curl_easy_setopt(kol, CURLOPT_URL, sunucu.Adres().c_str());
    curl_easy_setopt(kol, CURLOPT_CAINFO, sunucu.Sertifika().c_str());
    curl_easy_setopt(kol, CURLOPT_PROXY, "");
    curl_easy_setopt(kol, CURLOPT_WRITEFUNCTION, &Yut);
    long durum = 0;
    if (curl_easy_perform(kol) == CURLE_OK)
        curl_easy_getinfo(kol, CURLINFO_RESPONSE_CODE, &durum);
    curl_easy_cleanup(kol);
    return durum;
}

} // namespace

class SertifikaTest : public AgTest {
  protected:
    GeciciAgac agac;
};

TEST_F(SertifikaTest, One_that_nobody_has_signed_is_not_believed) {
    const HttpsSunucu sunucu(agac.Kok());
    ASSERT_NE(sunucu.Adres(), "") << "openssl (package openssl) doesn't serve";
    ASSERT_EQ(GuveneninDurumu(sunucu), 200) << "there is nothing else that a reply could fail of";
    const std::string adres = sunucu.Adres();
    EXPECT_EQ(Getir(Metin(adres.begin(), adres.end())), u"");
}

} // namespace velora::test
