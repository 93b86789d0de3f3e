#include "ui/Localisation.h"

#include "platform/System.h"
#include "ui/Version.h"

namespace tessarolyne::Localisation {

// A stored default bears the mark that tells it from a translation; the lookup takes it off.
#define TEXT(name, text)                                                                                     \
    std::string name(std::string_view language) {                                                            \
        return System::GetLocalizedString("Localisation." #name, "‡" text, language);                        \
    }
#include "ui/Localisation.def"
#undef TEXT

} // namespace tessarolyne::Localisation
