#include "desktop/Offscreen.h"
#include "desktop/QtText.h"
#include "desktop/Resources.h"
#include "desktop/WindowView.h"
#include "primes/WinChargSauvNb1ers.h"
#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"
#include "ui/Localisation.h"
#include "ui/Version.h"
#include "ui/WinInfos.h"
#include "ui/WinPrefs.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QFontInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QXmlStreamReader>

using namespace tessarolyne;

namespace {

// The font of the width test, wider than those that desktops have, in the usual size.
constexpr const char* fontFamily = "DejaVu Sans";
constexpr int fontPixels = 12;

struct Entry {
    QString source, translation;
    bool finished = false;
};

// The entries by key of a translators' file, which must be of that language.
std::map<std::string, Entry> Catalogue(const QString& language) {
    QFile file(QStringLiteral(CATALOGUES "/tessarolyne_") + language + u".ts"_qs);
    REQUIRE(file.open(QIODevice::ReadOnly));
    std::map<std::string, Entry> entries;
    std::string key;
    for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
        if (!xml.isStartElement()) {
            continue;
        }
        if (xml.name() == u"TS"_qs) {
            CHECK(xml.attributes().value(u"language"_qs) == language);
        } else if (xml.name() == u"message"_qs) {
            key = FromQt(xml.attributes().value(u"id"_qs).toString());
            CHECK_MESSAGE(entries.count(key) == 0, key << " stands there twice");
        } else if (xml.name() == u"source"_qs) {
            entries[key].source = xml.readElementText();
        } else if (xml.name() == u"translation"_qs) {
            entries[key].finished = !xml.attributes().hasAttribute(u"type"_qs);
            entries[key].translation = xml.readElementText();
        }
    }
    return entries;
}

const std::map<std::string, std::string> builtInTexts = {
#define TEXT(name, text) {"Localisation." #name, text},
#include "ui/Localisation.def"
#undef TEXT
};

QStringList Languages() {
    QStringList languages;
    for (const QString& file : QDir(QStringLiteral(CATALOGUES)).entryList({u"tessarolyne_*.ts"_qs})) {
        languages += file.mid(12).chopped(3);
    }
    return languages;
}

// The blanks at both ends, and the places for values between.
QString Frame(const QString& text) {
    const QString core = text.trimmed();
    const qsizetype at = text.indexOf(core);
    return text.left(at) + u"¿%"_qs.repeated(text.count(u"¿%"_qs)) + text.mid(at + core.size());
}

// The compiled catalogues, used as long as this lives, as by a desktop with these languages.
QtTranslations Speaking(const QStringList& wanted) {
    return QtTranslations(QStringLiteral(COMPILED_CATALOGUES), wanted);
}

// The pinned font for all texts.
void UseFont() {
    UseQt();
    QFont font(QString::fromLatin1(fontFamily));
    font.setPixelSize(fontPixels);
    REQUIRE(QFontInfo(font).family() == QLatin1String(fontFamily));
    QApplication::setFont(font);
}

// The letters that work with Alt in the view, with the names of what has them, as Qt shows and presses them.
void CheckAltLetters(const QWidget& view) {
    std::map<QString, QString> taken;
    const auto take = [&](const QString& caption, const QString& name) {
        const QString letter = QKeySequence::mnemonic(caption).toString();
        CHECK_MESSAGE(!letter.isEmpty(), name.toStdString() << " has none");
        CHECK_MESSAGE(
            taken.emplace(letter, name).second, letter.toStdString() << " for " << name.toStdString());
    };
    for (const QWidget* widget : view.findChildren<QWidget*>()) {
        const auto* box = qobject_cast<const QGroupBox*>(widget);
        const auto* label = qobject_cast<const QLabel*>(widget);
        const bool isText = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                            (label != nullptr && label->buddy() != nullptr);
        const QString caption = box != nullptr ? box->title()
                                : isText       ? widget->property("text").toString()
                                               : QString();
        if (!caption.isEmpty() && caption != u"✎"_qs) {
            take(caption, widget->objectName());
            CHECK(!widget->accessibleName().contains(u'&'));
        }
    }
    for (const QMenu* menu : view.findChildren<QMenu*>()) {
        if (menu->title().isEmpty()) {
            continue; // the bar's own, for what has no room in it
        }
        take(menu->title(), menu->title());
        std::map<QString, QString> items;
        for (const QAction* item : menu->actions()) {
            CHECK((item->isSeparator() ||
                   items.emplace(QKeySequence::mnemonic(item->text()).toString(), item->text()).second));
        }
        CHECK(items.count(QString()) == 0);
    }
}

// Every text of the window in its place: the views make a caption smaller that is too wide, so none may be.
// And what the user can go to has a help tag, which fits on a screen.
void CheckWidths(Window& window) {
    constexpr int titleButtons = 110;
    constexpr int frame = 8;
    constexpr int smallScreen = 800;
    const WindowView view(window, nullptr);
    CheckAltLetters(view);
    const QFontMetrics metrics(QApplication::font());
    const auto fits = [&](const QString& text, int room) {
        CHECK_MESSAGE(metrics.horizontalAdvance(text) <= room, text.toStdString());
    };
    fits(view.windowTitle(), view.width() - titleButtons);
    for (const QWidget* widget : view.findChildren<QWidget*>()) {
        if (const auto* box = qobject_cast<const QGroupBox*>(widget)) {
            fits(box->title(), box->width() - 2 * frame);
        } else if (const auto* edit = qobject_cast<const QLineEdit*>(widget)) {
            fits(edit->text(), edit->width() - frame);
        }
        CAPTURE(widget->objectName().toStdString());
        CAPTURE(widget->accessibleName().toStdString());
        CHECK(QFontInfo(widget->font()).pixelSize() >= fontPixels);
        const bool isControl = !widget->objectName().isEmpty() && widget->focusPolicy() != Qt::NoFocus;
        CHECK((!isControl || !widget->accessibleName().trimmed().isEmpty()));
    }
    for (const Control* control : window.Controls()) {
        CAPTURE(control->Name);
        CHECK((!control->TakesFocus() || !control->HelpTag().empty()));
        fits(WithLineFeeds(control->HelpTag()).section(u'\n', 0, 0), smallScreen);
    }
}

} // namespace

TEST_CASE("A translators' file has known keys and whole texts, and a language's own file has them all") {
    const QStringList languages = Languages();
    REQUIRE(languages.contains(u"en"_qs));
    for (const QString& language : languages) {
        CAPTURE(language.toStdString());
        const auto entries = Catalogue(language);
        for (const auto& [key, entry] : entries) {
            CAPTURE(key);
            const auto builtIn = builtInTexts.find(key);
            REQUIRE(builtIn != builtInTexts.end());
            const QString french = WithLineFeeds(builtIn->second);
            const QString& text = entry.translation;
            CHECK(entry.source.toStdString() == french.toStdString());
            CHECK(entry.finished);
            CHECK(!text.trimmed().isEmpty());
            CHECK(Frame(text).toStdString() == Frame(french).toStdString());
        }
        for (const auto& [key, text] : builtInTexts) {
            CHECK_MESSAGE((language.contains(u'_') || entries.count(key) == 1), key << " is missing");
        }
    }
}

TEST_CASE("A text comes from the region's catalogue, else the language's, else it is the built-in one") {
    UseFont();
    const struct {
        std::string wanted, words, currencies, cancel, cancelOfQt;
    } rows[] = {
        {"en", "en", "euros/cents", "Cancel", "Cancel"},
        {"en-GB fr", "en", "pounds/pence", "Cancel", "Cancel"},
        {"en_US.UTF-8", "en", "dollars/cents", "Cancel", "Cancel"},
        {"tlh EN-Latn-gb", "en", "pounds/pence", "Cancel", "Cancel"},
        {"en_CA", "en", "dollars/cents", "Cancel", "Cancel"},
        {"fr_CA", "fr", "dollars/cents", "Annuler", "Annuler"},
        {"fr_CH", "ch be", "francs/centimes", "Annuler", "Annuler"},
        {"fr_BE", "ch be", "euros/centimes", "Annuler", "Annuler"},
        {"fr_FR en", "fr", "euros/centimes", "Annuler", "Annuler"},
        {"de", "fr", "euros/centimes", "Annuler", "Annuler"},
    };
    for (const auto& row : rows) {
        CAPTURE(row.wanted);
        const QtTranslations speaking = Speaking(ToQt(row.wanted).split(u' '));
        CHECK(Localisation::A_LangLoc() == row.words);
        CHECK(Localisation::Txt_Monnaies() + "/" + Localisation::Txt_Centimes() == row.currencies);
        CHECK(Localisation::Btn_Annuler() == row.cancel);
        CHECK(Localisation::Btn_Annuler("en-AU") == "Cancel");
        CHECK(QCoreApplication::translate("QPlatformTheme", "Cancel").toStdString() == row.cancelOfQt);
    }
}

TEST_CASE("Every text of every language fits at the pinned font, every control is explained, no Alt letter "
          "is there twice") {
    UseFont();
    const QStringList languages = Languages() + QStringList(u"fr"_qs);
    for (const QString& language : languages) {
        CAPTURE(language.toStdString());
        const QtTranslations speaking = Speaking({language});
        TestWorld world;
        WinMain& main = world.Main();
        QtMenu menus(world.program->app, *world.program->app.GetMenuBar());
        CheckAltLetters(WindowView(main, &menus));
        for (const char* digits : {"FF", "FFFFFFFFFFF", "!"}) {
            world.Type(main.EditFieldBaseOrg, digits);
            CheckWidths(main);
        }
        WinNbresPremiers& list = world.program->winNbresPremiers();
        list.Show();
        list.StaticTextAvance.Text = "9" + Localisation::Txt_Avancement();
        list.StaticTextNbNbre1ers.Text = "50 000 000" + Localisation::Txt_NombresPremiers();
        for (const auto& caption :
            {Localisation::Btn_ChoixFich(), Localisation::Btn_ChangFich(), Localisation::Btn_SauvFich()}) {
            list.PushButtonFichier.Caption = caption;
            CheckWidths(list);
        }
        CheckWidths(world.program->winInfos());
        CheckWidths(world.program->winPrefs());
        WinChargSauvNb1ers& progress = world.program->winChargSauvNb1ers();
        for (const auto& title : {Localisation::WinChargNb1ersTitre(), Localisation::WinSauvNb1ersTitre()}) {
            progress.Title = title;
            CheckWidths(progress);
        }
    }
}
