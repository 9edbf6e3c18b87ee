#include "platform/xml/Lecture.h"

#include "util/Texte.h"

#include <algorithm>
#include <array>
#include <cstring>

#include <libxml/xmlreader.h>

namespace xml {

namespace {

constexpr int kOptions = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_COMPACT;
constexpr std::size_t kTete = 512;  // bytes in which the declaration is looked for

const char* lettres(const xmlChar* texte) {
    return texte ? reinterpret_cast<const char*>(texte) : "";
}

void lisAttributs(const xmlNode* noeud, Element& element) {
    for (const xmlAttr* attribut = noeud->properties; attribut; attribut = attribut->next) {
        std::string valeur;
        for (const xmlNode* morceau = attribut->children; morceau; morceau = morceau->next)
            if (morceau->type == XML_TEXT_NODE) valeur += lettres(morceau->content);
        element.attributs.emplace_back(lettres(attribut->name), std::move(valeur));
    }
}

// What an entity stands for is never looked at: it stays the name that the document gives it.
Element elementDe(const xmlNode* noeud) {
    Element element{lettres(noeud->name), {}, {}, {}};
    lisAttributs(noeud, element);
    for (const xmlNode* dedans = noeud->children; dedans; dedans = dedans->next) {
        if (dedans->type == XML_ELEMENT_NODE)
            element.enfants.push_back(elementDe(dedans));
        else if (dedans->type == XML_TEXT_NODE || dedans->type == XML_CDATA_SECTION_NODE)
            element.texte += lettres(dedans->content);
        else if (dedans->type == XML_ENTITY_REF_NODE)
            element.texte += '&' + std::string(lettres(dedans->name)) + ';';
    }
    return element;
}

// The encoding that the declaration names, in lower case; "" without one, and for texts of two bytes.
std::string codageDeclare(std::string_view tete) {
    const std::string texte = util::minuscules(tete.substr(0, tete.find("?>")));
    if (!texte.starts_with("<?xml")) return "";
    const std::size_t nom = texte.find("encoding");
    const std::size_t debut = nom == std::string::npos ? nom : texte.find_first_of("\"'", nom);
    if (debut == std::string::npos) return "";
    return texte.substr(debut + 1, texte.find(texte[debut], debut + 1) - debut - 1);
}

// The bytes of the source as the parser takes them. Programs of Windows write code page 1252 whatever they declare, with
// bytes that no table of it has, and signs of control that no document may hold.
class Octets {
  public:
    explicit Octets(Source source) : m_source(std::move(source)) {}

    void commence() {
        while (m_attente.size() < kTete && lisEncore()) {
        }
        const std::string codage = codageDeclare(m_attente);
        m_de1252 = codage == "windows-1252" || codage == "iso-8859-1" || codage == "iso-8859-15" || codage == "cp1252";
        m_etroit = m_attente.size() < 2 ||
                   (static_cast<unsigned char>(m_attente[0]) < 0xFE && m_attente[0] != '\0' && m_attente[1] != '\0');
        if (m_de1252) m_attente = util::depuis1252(m_attente);
    }
    [[nodiscard]] bool de1252() const { return m_de1252; }

    int lis(char* vers, int place) {
        if (m_attente.empty()) lisEncore();
        if (m_echec) return -1;
        const std::size_t nombre = std::min(m_attente.size(), static_cast<std::size_t>(place));
        std::copy_n(m_attente.begin(), nombre, vers);
        m_attente.erase(0, nombre);
        if (m_etroit)
            std::replace_if(
                vers, vers + nombre,
                [](char c) { return static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r'; },
                ' ');
        m_lus += nombre;
        if (m_limite && m_lus > *m_limite) return -1;
        return static_cast<int>(nombre);
    }
    void limite(std::optional<std::size_t> octets) {
        m_limite = octets;
        m_lus = 0;
    }

  private:
    bool lisEncore() {
        std::array<char, 16 << 10> tampon{};
        const std::ptrdiff_t lus = m_fin ? 0 : m_source(tampon.data(), tampon.size());
        m_fin = lus <= 0;
        m_echec = m_echec || lus < 0;
        if (lus <= 0) return false;
        const std::string_view octets(tampon.data(), static_cast<std::size_t>(lus));
        m_attente += m_de1252 ? util::depuis1252(octets) : std::string(octets);
        return true;
    }

    Source m_source;
    std::string m_attente;
    std::optional<std::size_t> m_limite;
    std::size_t m_lus = 0;
    bool m_de1252 = false, m_etroit = true, m_fin = false, m_echec = false;
};

// Nothing may be thrown through the library.
int lisPourLAnalyse(void* octets, char* vers, int place) {
    try {
        return static_cast<Octets*>(octets)->lis(vers, place);
    } catch (...) {
        return -1;
    }
}

}  // namespace

std::string_view Element::attribut(std::string_view voulu) const {
    const auto place = std::ranges::find(attributs, voulu, &std::pair<std::string, std::string>::first);
    return place == attributs.end() ? std::string_view() : std::string_view(place->second);
}

const Element* Element::enfant(std::string_view voulu) const {
    const auto place = std::ranges::find(enfants, voulu, &Element::nom);
    return place == enfants.end() ? nullptr : &*place;
}

std::string_view Element::texteDe(std::string_view nomEnfant) const {
    const Element* trouve = enfant(nomEnfant);
    return trouve ? std::string_view(trouve->texte) : std::string_view();
}

struct Lecture::Etat {
    explicit Etat(Source source) : octets(std::move(source)) {}

    void ouvre() {
        octets.commence();
        const int options = octets.de1252() ? kOptions | XML_PARSE_IGNORE_ENC : kOptions;
        analyse.reset(
            xmlReaderForIO(lisPourLAnalyse, nullptr, &octets, nullptr, octets.de1252() ? "UTF-8" : nullptr, options));
        if (!analyse) throw std::bad_alloc();
        xmlTextReaderSetStructuredErrorHandler(analyse.get(), &Etat::note, this);
    }

    static void note(void* etat, xmlError* erreur) {
        auto& celui = *static_cast<Etat*>(etat);
        if (celui.ligne == 0 && erreur && erreur->level >= XML_ERR_ERROR) celui.ligne = erreur->line;
    }

    [[noreturn]] void echoue() const { throw Illisible("le document XML est abîmé", ligne); }

    // Of the reader: 1 there is more, 0 the end.
    bool avance(int reponse) const {
        if (reponse < 0) echoue();
        return reponse == 1;
    }

    Octets octets;
    std::unique_ptr<xmlTextReader, void (*)(xmlTextReader*)> analyse{nullptr, &xmlFreeTextReader};
    Element courant;
    std::vector<std::string> chemin;
    bool dejaPlus = false;  // the reader stands on what follows already
    bool encore = true;
    int ligne = 0;
};

Lecture::Lecture(Source source) : m_etat(std::make_unique<Etat>(std::move(source))) {}
Lecture::Lecture(Lecture&&) noexcept = default;
Lecture& Lecture::operator=(Lecture&&) noexcept = default;
Lecture::~Lecture() = default;

const Element* Lecture::suivant() {
    Etat& etat = *m_etat;
    if (!etat.analyse) etat.ouvre();
    xmlTextReader* const analyse = etat.analyse.get();
    while (etat.encore) {
        if (!std::exchange(etat.dejaPlus, false)) etat.encore = etat.avance(xmlTextReaderRead(analyse));
        if (!etat.encore) break;
        if (xmlTextReaderNodeType(analyse) != XML_READER_TYPE_ELEMENT) continue;
        const xmlNode* noeud = xmlTextReaderCurrentNode(analyse);
        etat.courant = {lettres(noeud->name), {}, {}, {}};
        lisAttributs(noeud, etat.courant);
        etat.chemin.resize(static_cast<std::size_t>(xmlTextReaderDepth(analyse)));
        etat.chemin.push_back(etat.courant.nom);
        return &etat.courant;
    }
    return nullptr;
}

const std::vector<std::string>& Lecture::chemin() const {
    return m_etat->chemin;
}

Element Lecture::prends() {
    Etat& etat = *m_etat;
    etat.octets.limite(kElementAuPlus);
    const xmlNode* noeud = xmlTextReaderExpand(etat.analyse.get());
    etat.octets.limite(std::nullopt);
    if (!noeud) etat.echoue();
    Element element = elementDe(noeud);
    saute();
    return element;
}

void Lecture::saute() {
    m_etat->encore = m_etat->avance(xmlTextReaderNext(m_etat->analyse.get()));
    m_etat->dejaPlus = m_etat->encore;
}

}  // namespace xml
