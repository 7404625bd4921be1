#include "online/FormFirma.h"

namespace velora {

// Nobody shows the profile as a first run before the screen of the password is there.
void IlkParolayiSor(Program& /*program*/) {}

} // namespace velora
