#include "platform/systeme/Horloge.h"

#include "util/Ascii.h"

#include <array>
#include <cstdlib>
#include <memory>
#include <string_view>

#include <unicode/dcfmtsym.h>
#include <unicode/smpdtfmt.h>

namespace systeme {

namespace {

// The user's choice for one category, as the C library would find it; French without one.
icu::Locale localeDe(const char* categorie) {
    for (const char* variable : {"LC_ALL", categorie, "LANG"}) {
        const char* valeur = std::getenv(variable);
        if (!valeur || !*valeur) continue;
        const std::string_view choix(valeur);
        const std::string nom(choix.substr(0, choix.find_first_of(".@")));
        if (nom == "C" || nom == "POSIX") break;
        return icu::Locale::createCanonical(nom.c_str());
    }
    return icu::Locale::getFrance();
}

// "dd/MM/yy" would mix the centuries.
icu::UnicodeString avecAnneeEntiere(const icu::UnicodeString& modele) {
    const int premier = modele.indexOf(u'y'), dernier = modele.lastIndexOf(u'y');
    icu::UnicodeString entier = modele;
    if (premier >= 0 && dernier == premier + 1) entier.replace(premier, 2, u"yyyy");
    return entier;
}

std::string dateFrancaise(std::time_t instant) {
    struct tm jour {};
    char texte[16] = "";
    if (localtime_r(&instant, &jour)) std::strftime(texte, sizeof texte, "%d/%m/%Y", &jour);
    return texte;
}

// The three numbers of a date, each with how many figures it has; nothing for a text of any other kind.
struct Nombre {
    int valeur = 0, chiffres = 0;
};
std::optional<std::array<Nombre, 3>> troisNombres(std::string_view texte) {
    std::array<Nombre, 3> nombres;
    std::size_t combien = 0;
    bool dedans = false;
    for (const char octet : texte) {
        const bool chiffre = util::estUnChiffre(octet);
        if (!chiffre && (util::estUneLettre(octet) || static_cast<unsigned char>(octet) >= 0x80)) return std::nullopt;
        if (chiffre && !dedans && ++combien > nombres.size()) return std::nullopt;
        dedans = chiffre;
        if (!chiffre) continue;
        Nombre& nombre = nombres[combien - 1];
        if (++nombre.chiffres > 4) return std::nullopt;
        nombre.valeur = 10 * nombre.valeur + (octet - '0');
    }
    return combien == nombres.size() ? std::optional(nombres) : std::nullopt;
}

std::optional<std::chrono::year_month_day> jourDe(int annee, int mois, int jour) {
    const std::chrono::year_month_day date{std::chrono::year(annee), std::chrono::month(static_cast<unsigned>(mois)),
                                           std::chrono::day(static_cast<unsigned>(jour))};
    return annee >= 1 && date.ok() ? std::optional(date) : std::nullopt;
}

}  // namespace

std::string HorlogeSysteme::dateDuJour() const {
    return dateCourte(std::time(nullptr));
}

std::string dateCourte(std::time_t instant) {
    icu::Locale locale = localeDe("LC_TIME");
    UErrorCode etat = U_ZERO_ERROR;
    locale.setKeywordValue("calendar", "gregorian", etat);
    const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createDateInstance(icu::DateFormat::kShort, locale));
    auto* simple = dynamic_cast<icu::SimpleDateFormat*>(format.get());
    if (!simple) return dateFrancaise(instant);  // ICU without its data

    icu::UnicodeString modele;
    simple->applyPattern(avecAnneeEntiere(simple->toPattern(modele)));
    icu::UnicodeString date;
    simple->format(static_cast<UDate>(instant) * 1000.0, date);
    std::string texte;
    return date.toUTF8String(texte);
}

OrdreDate ordreDesDates() {
    constexpr std::time_t k22Novembre2001 = 1006430400;  // a day around it, where the machine is
    const auto nombres = troisNombres(dateCourte(k22Novembre2001));
    return nombres && nombres->front().valeur == 11 ? OrdreDate::MoisJour : OrdreDate::JourMois;
}

std::optional<std::chrono::year_month_day> dateLue(std::string_view texte, OrdreDate ordre) {
    const auto nombres = troisNombres(texte);
    if (!nombres) return std::nullopt;
    const auto& [un, deux, trois] = *nombres;
    if (un.chiffres > 2) return jourDe(un.valeur, deux.valeur, trois.valeur);
    if (trois.chiffres == 1 || trois.chiffres == 3) return std::nullopt;
    const int annee = trois.chiffres == 2 ? trois.valeur + (trois.valeur < 70 ? 2000 : 1900) : trois.valeur;
    const bool jourDAbord = ordre == OrdreDate::JourMois;
    const auto date = jourDe(annee, jourDAbord ? deux.valeur : un.valeur, jourDAbord ? un.valeur : deux.valeur);
    return date ? date : jourDe(annee, jourDAbord ? un.valeur : deux.valeur, jourDAbord ? deux.valeur : un.valeur);
}

std::string separateurDecimal() {
    UErrorCode etat = U_ZERO_ERROR;
    const icu::DecimalFormatSymbols symboles(localeDe("LC_NUMERIC"), etat);
    if (U_FAILURE(etat)) return ",";
    std::string texte;
    return symboles.getConstSymbol(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol).toUTF8String(texte);
}

}  // namespace systeme
