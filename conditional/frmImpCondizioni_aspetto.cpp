// How the window looks, and its design values.
#include "conditional/frmImpCondizioni.h"
#include "shell/AggiungiALista.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int margine = 14;
constexpr int distanza = 8;
constexpr int bordo = 12;
constexpr int latoCasella = 20;
constexpr int larghezzaCombo = 150;
constexpr int larghezzaEsempi = 172;

// The height of a panel's first line, in which its caption stands.
int primaRiga(const Cornice &cornice)
{
    return cornice.titolo().top() + cornice.titolo().bottom() + 1;
}

// What stands behind the caption, in the same line.
QHBoxLayout *rigaDelTitolo(Cornice &cornice)
{
    auto *riga = new QHBoxLayout(&cornice);
    riga->setContentsMargins(cornice.titolo().right() + 16, distanza, bordo, distanza);
    cornice.setMinimumHeight(primaRiga(cornice));
    return riga;
}

Immagine *disegno(Cornice &cornice, QStringView nome, QSize misura)
{
    auto *immagine = new Immagine(QString(), &cornice, Disegni::icona(nome));
    immagine->setFixedSize(misura);
    return immagine;
}

} // namespace

void frmImpCondizioni::disponi()
{
    lblSpiegazione.setWordWrap(true);
    lblSpiegazione.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // Two lines, so that a long name moves nothing.
    constexpr int respiro = 4; // a wrapped text takes a little more than its lines
    lblSpiegazione.setMinimumHeight(2 * lblSpiegazione.fontMetrics().lineSpacing() + respiro);
    setDialogo();
    setPredefinito(&pulOK);
    setAnnulla(&pulAnnulla);
    disponiPannelli();

    auto *pannelli = new QGridLayout;
    pannelli->setSpacing(distanza);
    pannelli->addWidget(&frame(CampoOrario), 0, 0, 1, 2);
    for (int i = CampoUltrasuoni; i <= CampoMotori; ++i)
        pannelli->addWidget(&frame(i), i - 1, 0);
    pannelli->addWidget(&picOptions, 1, 1, campiCondizione - 1, 1);
    pannelli->setColumnStretch(0, 1);
    disponiEsempi();

    auto *pulsanti = new QHBoxLayout;
    pulsanti->addStretch();
    pulsanti->addWidget(&pulOK);
    pulsanti->addWidget(&pulAnnulla);

    auto *colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(margine, margine, margine, margine);
    colonna->setSpacing(margine);
    colonna->addWidget(&lblSpiegazione);
    colonna->addLayout(pannelli);
    colonna->addStretch();
    colonna->addLayout(pulsanti);
    ordineTasti();
    resize(minimumSizeHint());
}

void frmImpCondizioni::disponiPannelli()
{
    static const QStringList titoli = {u"Orario"_s, u"Sensori a ultrasuoni"_s, u"Temperatura"_s,
                                       u"Batterie logica"_s, u"Batterie motori"_s};
    for (int i = frame.prima(); i <= frame.ultima(); ++i) {
        frame(i).setCaption(titoli[i - frame.prima()]);
        frame(i).setCursor(Qt::PointingHandCursor);
        Immagine &casella = imgCasella(i);
        casella.setParent(&frame(i));
        casella.setGeometry(bordo, (primaRiga(frame(i)) - latoCasella) / 2, latoCasella,
                            latoCasella);
        casella.setAccessibleName(frame(i).Caption());
        casella.conTastiera();
        casella.conSpunta(2);
    }
    disponiOrario();

    static const QStringList lati = {u"Destro"_s, u"Centrale"_s, u"Sinistro"_s};
    auto *sensori = new QHBoxLayout(&frame(CampoUltrasuoni));
    sensori->setContentsMargins(rientroTitolo, primaRiga(frame(CampoUltrasuoni)), bordo, bordo);
    // As the robot has them, seen from behind.
    for (int k = opzSens.ultima(); k >= opzSens.prima(); --k) {
        opzSens(k).setCaption(lati[k - opzSens.prima()]);
        opzSens(k).setCursor(Qt::ArrowCursor);
        sensori->addWidget(&opzSens(k));
    }

    static const QStringList livelli = {u"Scarichissime"_s, u"Scariche"_s, u"Medie"_s, u"Cariche"_s,
                                        u"Carichissime"_s};
    AggiungiVoci(cbBattLogica, livelli);
    AggiungiVoci(cbBattMotori, livelli);
    const std::initializer_list<std::pair<int, Combo *>> scelte = {
        {CampoTemperatura, &cbTemperatura},
        {CampoLogica, &cbBattLogica},
        {CampoMotori, &cbBattMotori}};
    for (const auto &[pannello, combo] : scelte) {
        combo->setFixedWidth(qMax(larghezzaCombo, cbBattLogica.sizeHint().width()));
        combo->setAccessibleName(frame(pannello).Caption());
        combo->setCursor(Qt::ArrowCursor);
        rigaDelTitolo(frame(pannello))->addWidget(combo, 0, Qt::AlignRight);
    }
}

void frmImpCondizioni::disponiOrario()
{
    auto *riga = rigaDelTitolo(frame(CampoOrario));
    riga->setSpacing(0);
    riga->addStretch();
    Etichetta *etichette[] = {&lblOre, &lblMinuti, &lblSecondi};
    for (size_t i = 0; i < m_ore.size(); ++i) {
        const Ora &ora = m_ore[i];
        const QString nome = etichette[i]->Caption();
        etichette[i]->setBuddy(&ora.testo);
        ora.testo.setAccessibleName(nome);
        ora.testo.setAlignment(Qt::AlignRight);
        ora.testo.setFixedWidth(qMax(44, ora.testo.fontMetrics().horizontalAdvance(u"0000"_s)));
        ora.barra.setAccessibleName(nome);
        ora.barra.setFixedHeight(ora.testo.sizeHint().height());
        ora.barra.setCursor(Qt::ArrowCursor);
        ora.barra.conFrecce(ora.testo);
        riga->addSpacing(i == 0 ? 0 : 18);
        riga->addWidget(etichette[i]);
        riga->addSpacing(6);
        riga->addWidget(&ora.testo);
        riga->addWidget(&ora.barra);
    }
}

void frmImpCondizioni::disponiEsempi()
{
    int larghezza = larghezzaEsempi;
    const auto aggiungi = [&](Cornice &esempio, std::initializer_list<Immagine *> quali) {
        auto *pila = new QVBoxLayout;
        pila->setSpacing(10);
        pila->addStretch();
        for (Immagine *immagine : quali)
            pila->addWidget(immagine, 0, Qt::AlignHCenter);
        pila->addStretch();
        auto *riga = new QHBoxLayout(&esempio);
        riga->setContentsMargins(esempio.titolo().right() + distanza, 0, distanza, 0);
        riga->addLayout(pila);
        larghezza = qMax(larghezza, riga->minimumSize().width());
    };
    aggiungi(fraSample2, {disegno(fraSample2, u"sensori", {75, 45})});
    aggiungi(fraSample3, {disegno(fraSample3, u"termometro", {24, 24})});
    aggiungi(fraSample4, {disegno(fraSample4, u"batteria_logica", {56, 24}),
                          disegno(fraSample4, u"batteria_motori", {56, 24})});
    picOptions.setMinimumWidth(larghezza);
    picOptions.Resize.collega(this, &frmImpCondizioni::disponiAccanto);
}

// Beside the panels of the same number, as high as these; the last one is for both batteries.
void frmImpCondizioni::disponiAccanto()
{
    const auto metti = [this](Cornice &esempio, int primo, int ultimo) {
        const int cima = frame(primo).y() - picOptions.y();
        const int fondo = frame(ultimo).geometry().bottom() + 1 - picOptions.y();
        esempio.setGeometry(0, cima, picOptions.width(), fondo - cima);
    };
    metti(fraSample2, CampoUltrasuoni, CampoUltrasuoni);
    metti(fraSample3, CampoTemperatura, CampoTemperatura);
    metti(fraSample4, CampoLogica, CampoMotori);
}

void frmImpCondizioni::ordineTasti()
{
    const QList<QWidget *> ordine = {&imgCasella(CampoOrario),
                                     &txtOre,
                                     &txtMinuti,
                                     &txtSecondi,
                                     &imgCasella(CampoUltrasuoni),
                                     &opzSens(3),
                                     &opzSens(2),
                                     &opzSens(1),
                                     &imgCasella(CampoTemperatura),
                                     &cbTemperatura,
                                     &imgCasella(CampoLogica),
                                     &cbBattLogica,
                                     &imgCasella(CampoMotori),
                                     &cbBattMotori,
                                     &pulOK,
                                     &pulAnnulla};
    for (qsizetype i = 1; i < ordine.size(); ++i)
        setTabOrder(ordine[i - 1], ordine[i]);
}

void frmImpCondizioni::Disegno()
{
    setTag({});
    lblSpiegazione.setCaption(spiegazione.toString());
    for (int i = frame.prima(); i <= frame.ultima(); ++i) {
        frame(i).setTag(u"0"_s);
        imgCasella(i).setTag(u"-1"_s);
        mostra(i, false);
    }
    for (const Ora &ora : m_ore) {
        ora.testo.setText(u"0"_s);
        ora.barra.setValue(0);
    }
    for (int k = opzSens.prima(); k <= opzSens.ultima(); ++k)
        opzSens(k).setValue(0);
    cbTemperatura.Clear();
    cbBattLogica.setListIndex(-1);
    cbBattMotori.setListIndex(-1);
    pulOK.setEnabled(false);
    // The first control has it when the window comes again.
    if (QWidget *conFuoco = focusWidget())
        conFuoco->clearFocus();
}
