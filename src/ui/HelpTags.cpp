#include "ui/HelpTags.h"

#include "platform/Window.h"
#include "ui/Localisation.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace tessarolyne {

namespace {

struct Row {
    std::string_view control;
    std::string (*text)(std::string_view language);
};

// By window. A name that two controls share stands twice, in their order.
constexpr Row rows[] = {
    {"EditFieldNbre", &Localisation::EditFieldNbre_HT},
    {"StaticTextEnBase10", &Localisation::EditFieldNbre_HT},
    {"CheckBoxFormatAuto", &Localisation::CheckBoxFormatAuto_HT},
    {"EditFieldBaseOrg", &Localisation::EditFieldBaseOrg_HT},
    {"PopupMenuBaseOrg", &Localisation::PopupMenuBaseOrg_HT},
    {"PushButtonPressPapBOrg", &Localisation::PushButtonPressPap_HT},
    {"EditFieldBaseDest", &Localisation::EditFieldBaseDest_HT},
    {"PopupMenuBaseDest", &Localisation::PopupMenuBaseDest_HT},
    {"PushButtonPressPapBDest", &Localisation::PushButtonPressPap_HT},
    {"RadioButton09AZ", &Localisation::RadioButton09AZ_HT},
    {"RadioButton09AZ", &Localisation::RadioButtonAZ09_HT},
    {"TxtAreaDecomp1er", &Localisation::TxtAreaDecomp1er_HT},
    {"PushButtDecomposer", &Localisation::PushButtDecomposer_HT},
    {"BevelButtonListe", &Localisation::BevelButtonListe_HT},
    {"PushButtonPressPapPrem", &Localisation::PushButtonPressPapPrem_HT},
    {"TxtAreaLettres", &Localisation::TxtAreaLettres_HT},
    {"EditFieldMonnaies", &Localisation::EditFieldMonnaies_HT},
    {"EditFieldMonnaie", &Localisation::EditFieldMonnaie_HT},
    {"EditFieldCentimes", &Localisation::EditFieldCentimes_HT},
    {"EditFieldCentime", &Localisation::EditFieldCentime_HT},
    {"PushButtonPressPapLettr", &Localisation::PushButtonPressPapLettr_HT},
    {"CheckBoxMajusc", &Localisation::CheckBoxMajusc_HT},
    {"CheckBoxTrUnion", &Localisation::CheckBoxTrUnion_HT},
    {"PopupMenuLg", &Localisation::PopupMenuLg_HT},

    {"PushButtonCalcPrems", &Localisation::PushButtonCalcPrems_HT},
    {"EditFieldFin", &Localisation::EditFieldFin_HT},
    {"EditFieldAffDu", &Localisation::EditFieldAffDu_HT},
    {"EditFieldAffAu", &Localisation::EditFieldAffAu_HT},
    {"EditFieldChercher", &Localisation::EditFieldChercher_HT},
    {"TxtAreaListeNbres1ers", &Localisation::TxtAreaListeNbres1ers_HT},
    {"EditFieldNbNbresLigne", &Localisation::EdFieldNbNbresLigne_HT},
    {"ProgressBarNb1ers", &Localisation::ProgressBarNb1ers_HT},

    {"TexteInfo", &Localisation::TexteInfo_HT},
    {"Web1", &Localisation::Web_HT},
    {"Web2", &Localisation::Web_HT},
    {"Email1", &Localisation::Email_HT},
    {"Email2", &Localisation::Email_HT},
    {"BevButtDejDon", &Localisation::BevButtDejDon_HT},
    {"BoutonOk", &Localisation::BoutonOk_HT},

    {"CheckBoxAutoUpdt", &Localisation::CheckBoxAutoUpdt_HT},
    {"CheckBoxAnnonces", &Localisation::CheckBoxAnnonces_HT},
    {"PushButtAnnuler", &Localisation::PushButtAnnuler_HT},
    {"PushButtOk", &Localisation::PushButtOk_HT},
};

} // namespace

void ExplainControls(const Window& window) {
    const auto controls = window.Controls();
    for (const Row& row : rows) {
        const auto place = std::find_if(controls.begin(), controls.end(), [&](const Control* control) {
            return control->Name == row.control && control->HelpTag().empty();
        });
        if (place != controls.end()) {
            (*place)->HelpTag = row.text({});
        }
    }
}

} // namespace tessarolyne
