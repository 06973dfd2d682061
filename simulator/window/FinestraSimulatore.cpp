#include "simulator/window/FinestraSimulatore.h"
#include "simulator/Simulatore.h"
#include "simulator/window/PannelloDiario.h"
#include "simulator/window/PannelloLinea.h"
#include "simulator/window/PannelloSensori.h"
#include "simulator/window/PannelloTelecamera.h"
#include "simulator/window/QuadroRobot.h"
#include "simulator/window/QuadroStanza.h"
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <cmath>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
namespace {
const QString stile = uR"(
QWidget#frmSimulatore { background: #e9edf2; }
QGroupBox {
    background: #ffffff; border: 1px solid #cbd3dd; border-radius: 8px;
    margin-top: 0px; padding: 20px 4px 2px 4px; color: #1c242e;
}
QGroupBox::title {
    subcontrol-origin: border; subcontrol-position: top left;
    left: 12px; top: 7px; color: #17467a; font-weight: bold;
}
QFrame#cornice { background: #ffffff; border: 1px solid #cbd3dd; border-radius: 8px; }
QLabel { color: #1c242e; }
QLabel[titolo="true"] { color: #5b6674; }
QPushButton {
    background: #f4f6f9; border: 1px solid #b3becb; border-radius: 5px;
    padding: 5px 10px; color: #1c242e;
}
QPushButton:hover { background: #e6edf6; }
QPushButton:pressed { background: #d5e0ee; }
QPushButton:checked { background: #b42318; border-color: #8a1a11; color: #ffffff; }
QPushButton:focus { border: 1px solid #175cb5; }
QTableView { border: 1px solid #dde3ea; alternate-background-color: #f6f8fa; background: #ffffff; }
QHeaderView::section {
    background: #f0f3f7; border: none; border-bottom: 1px solid #cbd3dd;
    padding: 4px 6px; color: #3a4654;
}
)"_s;

QString moto(const StatoRobot &s)
{
    switch (s.base) {
    case MotoBase::Avanti:
        return s.velocita == 1 ? u"avanti piano"_s : u"avanti forte"_s;
    case MotoBase::Indietro:
        return s.velocita == 1 ? u"indietro piano"_s : u"indietro forte"_s;
    case MotoBase::GiraDestra:
        return u"gira a destra"_s;
    case MotoBase::GiraSinistra:
        return u"gira a sinistra"_s;
    default:
        return s.urtato ? u"ferma contro un ostacolo"_s : u"ferma"_s;
    }
}

QString messaggi(const StatoRobot &s)
{
    if (s.messaggioInCorso > 0 && s.messaggioRegistra)
        return u"registra il messaggio %1"_s.arg(s.messaggioInCorso);
    return s.detto.isEmpty() ? u"niente"_s : s.detto;
}
} // namespace

FinestraSimulatore::FinestraSimulatore(Simulatore &simulatore, QWidget *parent)
    : QWidget(parent), m_sim(simulatore)
{
    setObjectName(u"frmSimulatore"_s);
    setWindowTitle(u"Tessaro simulato"_s);
    // The style is a light one whatever the desktop's colours are.
    setPalette(QPalette(QColor(0xf4, 0xf6, 0xf9), QColor(0xe9, 0xed, 0xf2)));
    setStyleSheet(stile);

    Robot &robot = m_sim.robot();
    auto *cornice = new QFrame;
    cornice->setObjectName(u"cornice"_s);
    auto *dentro = new QVBoxLayout(cornice);
    dentro->setContentsMargins(10, 10, 10, 10);
    dentro->setSpacing(8);
    auto *stanza = new QuadroStanza(robot);
    dentro->addWidget(stanza, 1);
    dentro->addWidget(striscia());

    auto *sinistra = new QVBoxLayout;
    sinistra->setSpacing(10);
    sinistra->addWidget(cornice, 5);
    sinistra->addWidget(new PannelloDiario(m_sim.diario()), 2);

    auto *fronte = new QGroupBox(u"Robot"_s);
    auto *interno = new QVBoxLayout(fronte);
    interno->setContentsMargins(4, 0, 4, 6);
    interno->addWidget(new QuadroRobot(robot));
    auto *destra = new QVBoxLayout;
    destra->setSpacing(10);
    destra->addWidget(fronte, 1);
    destra->addWidget(new PannelloSensori(robot));
    auto *telecamera = new PannelloTelecamera(robot);
    destra->addWidget(telecamera);
    destra->addWidget(new PannelloLinea(m_sim));

    auto *tutto = new QHBoxLayout(this);
    tutto->setContentsMargins(12, 12, 12, 12);
    tutto->setSpacing(12);
    tutto->addLayout(sinistra, 1);
    tutto->addLayout(destra);

    connect(stanza, &QuadroStanza::spostato, telecamera, &PannelloTelecamera::invecchia);
    connect(&robot, &Robot::cambiato, this, &FinestraSimulatore::mostra);
    mostra();
    // All of it on a small screen, too, with room for its frame.
    constexpr QSize misura(1120, 800);
    constexpr QSize cornici(8, 60);
    resize(misura.boundedTo(screen()->availableSize() - cornici));
}

// One line of what cannot be seen in the pictures.
QWidget *FinestraSimulatore::striscia()
{
    auto *striscia = new QWidget;
    auto *riga = new QHBoxLayout(striscia);
    riga->setContentsMargins(2, 0, 2, 0);
    riga->setSpacing(18);
    for (const auto &[titolo, nome, testo] :
         {std::tuple{u"Sessione"_s, u"lblSessione"_s, &m_sessione},
          {u"Programma"_s, u"lblProgramma"_s, &m_programma},
          {u"Foto"_s, u"lblFoto"_s, &m_foto},
          {u"Base"_s, u"lblBase"_s, &m_base},
          {u"Dice"_s, u"lblVoce"_s, &m_voce}}) {
        auto *coppia = new QVBoxLayout;
        coppia->setSpacing(1);
        auto *sopra = new QLabel(titolo);
        sopra->setProperty("titolo", true);
        *testo = new QLabel;
        (*testo)->setObjectName(nome);
        coppia->addWidget(sopra);
        coppia->addWidget(*testo);
        riga->addLayout(coppia, testo == &m_voce ? 1 : 0);
    }
    const QFontMetrics misura = fontMetrics();
    m_sessione->setFixedWidth(misura.horizontalAdvance(u"aperta"_s) + 12);
    m_base->setFixedWidth(misura.horizontalAdvance(u"ferma contro un ostacolo"_s) + 12);
    m_programma->setFixedWidth(misura.horizontalAdvance(u"nessuno"_s) + 12);
    // A long phrase must not widen the window: it is cut, and whole in its tool tip.
    m_voce->setMinimumWidth(120);
    m_voce->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return striscia;
}

void FinestraSimulatore::resizeEvent(QResizeEvent *evento)
{
    QWidget::resizeEvent(evento);
    layout()->activate();
    mostra();
}

void FinestraSimulatore::mostra()
{
    const StatoRobot &s = m_sim.robot().stato();
    m_sessione->setText(s.sessioneAperta ? u"aperta"_s : u"chiusa"_s);
    m_base->setText(moto(s));
    m_programma->setText(s.programma == 0 ? u"nessuno"_s : QString::number(s.programma));
    m_foto->setText(QString::number(s.foto));
    const QString detto = messaggi(s);
    m_voce->setText(m_voce->fontMetrics().elidedText(detto, Qt::ElideRight, m_voce->width()));
    m_voce->setToolTip(detto);
}
} // namespace tessaro_sim
