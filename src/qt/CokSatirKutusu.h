#pragma once

#include <vector>

#include <QPlainTextEdit>

namespace velora {

/// A field of many lines. The toolkit lays out a line as a whole, which takes it minutes for a word without
/// an end. So a line longer than any that is typed is shown in pieces, each in a line of its own, at a blank
/// where there is one. That is for the eye alone: what is read and copied has none of these line ends.
class CokSatirKutusu : public QPlainTextEdit {
  public:
    static constexpr int kEnUzunSatir = 5000; ///< characters that are shown in one line

    explicit CokSatirKutusu(QWidget* ust = nullptr);

    /// The text with its pieces joined.
    [[nodiscard]] QString Metni() const;
    /// Sets the text. The cursor of the field that has the focus keeps its place, counted from the end,
    /// behind what was refused; without the focus counted from the beginning. A text that is shown in pieces
    /// can't be undone: a line end that comes back would be one of the text.
    void MetniKoy(const QString& metin);

  protected:
    QMimeData* createMimeDataFromSelection() const override;
    void insertFromMimeData(const QMimeData* gelen) override;

  private:
    void Kaydir(int yer, int giden, int gelen);
    /// A part of what is shown, from `bas` on, without the ends of pieces.
    [[nodiscard]] QString Birlestir(const QString& gorunen, int bas) const;
    /// A place in what is shown as a place in the text, and back.
    [[nodiscard]] int Metindeki(int gorunen) const;
    [[nodiscard]] int Gorunen(int metindeki) const;

    std::vector<int> ekler_; // in what is shown: the line ends that the text doesn't have
};

} // namespace velora
