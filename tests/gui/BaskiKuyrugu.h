#pragma once

#include <filesystem>

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace velora::test {

/// A print service of the test's own, with one queue, which is the default printer of this process and its
/// children as long as this stands. Its paper are PDF files. It shares nothing with the service of the
/// machine, and leaves nothing behind.
class BaskiKuyrugu {
  public:
    /// Why there can be none here; empty where there can.
    static QString Engel();

    BaskiKuyrugu();
    ~BaskiKuyrugu();
    BaskiKuyrugu(const BaskiKuyrugu&) = delete;
    BaskiKuyrugu& operator=(const BaskiKuyrugu&) = delete;

    /// The service answers and has its queue.
    bool Hazir() const { return hazir_; }

    /// A command of the service on the queue, as "cupsreject".
    static void Komut(const char* program);
    /// The service answers nobody, until it goes on.
    void Uyut() const;
    void Uyandir() const;
    /// The queue goes; then there is no printer.
    static void KuyruguSil();

    /// Waits for what came out of the printer, counted from 1. Empty when it doesn't come.
    std::filesystem::path Basilan(int adet) const;
    /// What the service was given in a job, counted from 1.
    std::filesystem::path Verilen(int is) const;

  private:
    void AyarlariYaz() const;
    bool Basla();
    QString Yol(const char* ad) const { return klasor_.filePath(QString::fromLatin1(ad)); }

    QTemporaryDir klasor_{QStringLiteral("/tmp/velora-baski-XXXXXX")}; // a socket's path may not be long
    QProcess servis_;
    bool hazir_ = false;
};

} // namespace velora::test
