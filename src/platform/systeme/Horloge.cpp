#include "platform/systeme/Horloge.h"

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

std::string separateurDecimal() {
    UErrorCode etat = U_ZERO_ERROR;
    const icu::DecimalFormatSymbols symboles(localeDe("LC_NUMERIC"), etat);
    if (U_FAILURE(etat)) return ",";
    std::string texte;
    return symboles.getConstSymbol(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol).toUTF8String(texte);
}

}  // namespace systeme
