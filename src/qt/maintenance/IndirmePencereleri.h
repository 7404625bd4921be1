#pragma once

#include "qt/EkranPenceresi.h"

namespace velora {

struct FormDownloadManager;
struct FormResmiTatilYukle;
struct Program;

/// The window of `FormResmiTatilYukle`.
class TatilYuklePenceresi : public EkranPenceresi<FormResmiTatilYukle> {
  public:
    explicit TatilYuklePenceresi(Program& program);
};

/// The window of `FormDownloadManager`. It has no button that closes it: its X and the Esc key do.
class YeniSurumPenceresi : public EkranPenceresi<FormDownloadManager> {
  public:
    explicit YeniSurumPenceresi(Program& program);

    void reject() override;
};

} // namespace velora
