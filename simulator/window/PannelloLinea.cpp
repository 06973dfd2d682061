#include "simulator/window/PannelloLinea.h"
#include "simulator/Simulatore.h"
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <array>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
namespace {
constexpr double pocoRumore = 0.03; // of all bytes
constexpr std::array<int, 5> velocita{9600, 38400, 115200, 460800, 0};

QPushButton *interruttore(const QString &nome, const QString &testo, const QString &aiuto)
{
    auto *pul = new QPushButton(testo);
    pul->setObjectName(nome);
    pul->setCheckable(true);
    pul->setToolTip(aiuto);
    return pul;
}
} // namespace

PannelloLinea::PannelloLinea(Simulatore &simulatore, QWidget *parent)
    : QGroupBox(u"Linea"_s, parent), m_sim(simulatore)
{
    m_stato = new QLabel;
    m_stato->setObjectName(u"lblLinea"_s);
    m_stato->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_stato->setFocusPolicy(Qt::StrongFocus);
    m_velocita = new QComboBox;
    m_velocita->setObjectName(u"cbVelocitaLinea"_s);
    m_velocita->setToolTip(u"Velocità della linea verso la console"_s);
    m_velocita->setAccessibleName(m_velocita->toolTip());
    for (const int baud : velocita)
        m_velocita->addItem(baud > 0 ? u"%1 baud"_s.arg(baud) : u"Senza limite"_s, baud);
    if (m_velocita->findData(m_sim.baud()) < 0)
        m_velocita->addItem(u"%1 baud"_s.arg(m_sim.baud()), m_sim.baud());
    m_velocita->setCurrentIndex(m_velocita->findData(m_sim.baud()));

    m_silenzio = interruttore(u"pulSilenzio"_s, u"Silenzio"_s,
                              u"Il robot esegue i comandi ma non risponde più"_s);
    m_disturbi = interruttore(u"pulDisturbi"_s, u"Disturbi"_s,
                              u"Byte persi, doppi e sbagliati, telegrammi troncati"_s);
    m_stacca = interruttore(u"pulStacca"_s, u"Stacca il cavo"_s,
                            u"La linea sparisce finché il cavo non viene riattaccato"_s);

    auto *griglia = new QGridLayout(this);
    griglia->setHorizontalSpacing(8);
    griglia->setVerticalSpacing(8);
    griglia->addWidget(m_stato, 0, 0, 1, 2);
    griglia->addWidget(m_velocita, 0, 2);
    griglia->addWidget(m_silenzio, 1, 0);
    griglia->addWidget(m_disturbi, 1, 1);
    griglia->addWidget(m_stacca, 1, 2);
    for (int colonna = 0; colonna < 3; ++colonna)
        griglia->setColumnStretch(colonna, 1);

    m_silenzio->setChecked(m_sim.guasti().silenzio);
    m_disturbi->setChecked(m_sim.guasti().persi > 0.0);
    connect(m_silenzio, &QPushButton::toggled, this,
            [this](bool attivo) { m_sim.guasti().silenzio = attivo; });
    connect(m_disturbi, &QPushButton::toggled, this, &PannelloLinea::disturba);
    connect(m_stacca, &QPushButton::toggled, this, &PannelloLinea::aggancia);
    connect(m_velocita, &QComboBox::currentIndexChanged, this,
            [this] { m_sim.impostaBaud(m_velocita->currentData().toInt()); });
    connect(&m_sim, &Simulatore::portaCambiata, this, &PannelloLinea::mostra);
    mostra();
}

void PannelloLinea::mostra()
{
    m_stato->setText(m_sim.percorso().isEmpty() ? u"Cavo staccato"_s
                     : m_sim.portaAperta()      ? u"%1: aperta"_s.arg(m_sim.percorso())
                                                : u"%1: in attesa"_s.arg(m_sim.percorso()));
}

void PannelloLinea::disturba(bool attivo)
{
    Guasti &guasti = m_sim.guasti();
    guasti.persi = guasti.doppi = guasti.sporchi = guasti.troncati = attivo ? pocoRumore : 0.0;
}

void PannelloLinea::aggancia(bool staccata)
{
    if (staccata) {
        m_sim.sgancia();
    } else if (!m_sim.riaggancia()) {
        const QSignalBlocker fermo(m_stacca);
        m_stacca->setChecked(true);
        QMessageBox::warning(this, u"Linea"_s, m_sim.errore());
    }
    m_stacca->setText(m_stacca->isChecked() ? u"Riattacca il cavo"_s : u"Stacca il cavo"_s);
    mostra();
}
} // namespace tessaro_sim
