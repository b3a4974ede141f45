// The words of the story screens, one screen line per row. {N} stands for
// the name of the player whose engineers made the invention.
#include "year/erfindungstexte.h"

#include <iterator>

#include "state/text.h"

namespace {

struct TextZeile {
    int nr;
    const char* text;  // UTF-8
};

const TextZeile ERFINDUNGS_TEXTE[] = {
    { 1, "Die Forscher und Erfinder von {N}"},
    { 1, "haben eine Möglichkeit gefunden, den"},
    { 1, "Lagerraum von Frachtern und Tankern bis"},
    { 1, "auf 120t zu erweitern. Die Spacedocks"},
    { 1, "können nun die Schiffe nachrüsten."},
    { 2, "Die besten Ingenieure von {N}"},
    { 2, "haben einen wirksameren Brandschutz für"},
    { 2, "ihr Lager auf SOL III entwickelt. Sie"},
    { 2, "garantieren Ihnen die Verhinderung von"},
    { 2, "über 60% aller Lagerbrände."},
    { 3, "Einem der Mitarbeiter von {N}"},
    { 3, "ist eine geniale Idee gekommen: Die"},
    { 3, "Raumschiffe könnten Reparatursets auf"},
    { 3, "ihren Reisen mitnehmen. Damit wäre"},
    { 3, "einmalig ein Großteil des Schadens auch"},
    { 3, "unterwegs zu beheben. Ab jetzt können"},
    { 3, "die Sets auf SOL III für 1000 SD gekauft"},
    { 3, "werden."},
    { 4, "Den Kostrukteuren von {N} ist ein"},
    { 4, "Weg eingefallen, um den Lagerraum von"},
    { 4, "Raumstationen auf 150t zu erweitern. Die"},
    { 4, "Kostruktionspläne wurden bereits den"},
    { 4, "Spacedocks übergeben."},
    { 5, "Die Sicherheitsabteilung von {N}"},
    { 5, "hat neuartige Waffen erfunden, mit denen"},
    { 5, "sich die Bewaffnung von Kreuzern auf die"},
    { 5, "Stufe 15 steigern lässt. "},
    { 6, "Die Chemiker von {N} haben einen"},
    { 6, "neuartigen Treibstoff entwickelt. Durch"},
    { 6, "Zusatz großer Mengen Mirellensafts wird"},
    { 6, "der Treibstoff so verfeinert, dass sich"},
    { 6, "die Geschwindigkeit der Raumschiffe um"},
    { 6, "50% erhöht. Die Reichweite erhöht sich"},
    { 6, "dabei leider nicht."},
    { 7, "Die Bauarbeiter von {N} haben"},
    { 7, "mit Ihren finanziellen Mitteln die"},
    { 7, "Spacedocks erweitert, sodass nun an bis"},
    { 7, "zu sieben Raumschiffe gleichzeitig"},
    { 7, "gebaut werden kann."},
    { 8, "Der Organisationsberater von {N}"},
    { 8, "hat die geringe Produktion der Planeten"},
    { 8, "bemängelt und folgende Lösung vorge-"},
    { 8, "schlagen: Man liefere modernste Geräte"},
    { 8, "an die Poduktionsstandorte aus. Von nun"},
    { 8, "an stellt die Regierung von SOL III für"},
    { 8, "50 SD Geräte für Sie bereit."},
    { 9, "Die Promotionagentur von {N} hat"},
    { 9, "eine völlig neue Werbestrategie für Sie"},
    { 9, "entwickelt. Damit lassen sich nun all"},
    { 9, "Ihre Waren für 5 - 10 SD über dem Markt-"},
    { 9, "preis verkaufen."},
    {10, "Geburtstagsüberraschung für {N}!"},
    {10, "Ohne Ihnen etwas davon zu sagen, hat"},
    {10, "eine Arbeitsgruppe einen völlig neuen"},
    {10, "Schifftyp erfunden: Den Großfrachter mit"},
    {10, "200t Lagerraum (ausbaubar auf 300t) und"},
    {10, "doppeltem Tankvolumen. Für 10000 SD"},
    {10, "können Sie die Spacedocks für 25 Jahre"},
    {10, "mit dem Bau eines dieser Schiffe"},
    {10, "beschäftigen."},
    {11, "Die Physiker von {N} haben die"},
    {11, "Ehre, Ihnen ein Produkt der aktuellsten"},
    {11, "Forschungsreihe zu präsentieren: Das"},
    {11, "Teleportationsportal. Zwischen zwei"},
    {11, "beliebigen Portalen können Ihre Schiffe"},
    {11, "nun innerhalb eines Jahres wechseln."},
    {11, "Vorsorglich wurde auf SOL III schon ein"},
    {11, "Portal errichtet. Weitere können Ihre"},
    {11, "Frachter (mit mindestens 100t Laderaum)"},
    {11, "für 100000 SD einladen und auf einem"},
    {11, "beliebigen Planeten installieren."},
};
const TextZeile KOMPONENTEN_TEXTE[] = {
    { 1, "Ihr gerade gelandetes Raumschiff hat"},
    { 1, "eine neue, bis dahin unbekannte "},
    { 1, "Substanz entdeckt: GANTALION! Es"},
    { 1, "handelt sich um die erste Komponente."},
    { 1, "Ihre Prämie: 500."},
    { 2, "Das gerade gelandete Raumschiff hat"},
    { 2, "eine wichtige Substanz entdeckt: Den"},
    { 2, "Katalysator SUPRACARBONIT! Für diese"},
    { 2, "zweite Komponente erhalten Sie 500"},
    { 2, "Prämie."},
    { 3, "Auf dem Planeten, den Sie neu entdeckt "},
    { 3, "haben, hat ein exzentrischer Experte "},
    { 3, "für Fluritid-Vearbeitung entdeckt, wie"},
    { 3, "Gantalion zu einem Delta-TW-Filterein-"},
    { 3, "satz verarbeitet werden kann. Sie"},
    { 3, "erhalten 600 Prämie für die Weiter-"},
    { 3, "meldung dieser Entdeckung."},
    { 4, "Sie haben einen Planeten entdeckt, auf"},
    { 4, "dem Pseudostahl hergestellt wird: Ein "},
    { 4, "Triebwerksisolator und damit die vierte"},
    { 4, "Komponente. Ihre Prämie: 700."},
    { 5, "Ein Triebwerkskonstukteur hat in"},
    { 5, "monatelanger, einsamer Arbeit auf dem"},
    { 5, "von Ihnen nun entdeckten Planeten den"},
    { 5, "Delta-TW-Filter einbaufähig gemacht."},
    { 5, "Sie erhalten für die Weitermeldung 1000"},
    { 5, "Prämie."},
};


// The prize of each component, by the number found before it.
constexpr long PRAEMIEN[] = {500, 500, 600, 700, 1000};

template <size_t N>
std::vector<std::string> Zeilen(const TextZeile (&tabelle)[N], int nr) {
    std::vector<std::string> z;
    for (const TextZeile& t : tabelle)
        if (t.nr == nr) z.push_back(T(t.text));
    return z;
}

}  // namespace

std::vector<std::string> ErfindungsText(int L, const std::string& name) {
    std::vector<std::string> z = Zeilen(ERFINDUNGS_TEXTE, L);
    for (std::string& zeile : z)
        if (const size_t i = zeile.find("{N}"); i != std::string::npos) zeile.replace(i, 3, name);
    return z;
}

std::vector<std::string> KomponentenText(int n) { return Zeilen(KOMPONENTEN_TEXTE, n); }

long KomponentenPraemie(int n) {
    return n >= 1 && n <= static_cast<int>(std::size(PRAEMIEN)) ? PRAEMIEN[n - 1] : 0;
}
