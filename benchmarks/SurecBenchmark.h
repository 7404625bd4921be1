#pragma once

#include <span>

namespace velora::olcum {

/// Where the command line asks for it, does as a process of its own what is measured and doesn't return. The
/// toolkit's application must be there.
void SurecOlarakCalis(std::span<char*> parcalar);

} // namespace velora::olcum
