#include "simulator/window/PannelloTelecamera.h"
#include "simulator/robot/Robot.h"
#include "simulator/robot/Telecamera.h"
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPixmap>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
namespace {
constexpr int aggiornamento = 120; // ms between two pictures at most
constexpr QSize vista{144, 108};
enum Fonte { DallaStanza, DaCartella };
} // namespace

PannelloTelecamera::PannelloTelecamera(Robot &robot, QWidget *parent)
    : QGroupBox(u"Telecamera"_s, parent), m_robot(robot)
{
    m_vista = new QLabel;
    m_vista->setObjectName(u"imgTelecamera"_s);
    m_vista->setFixedSize(vista);
    m_stato = new QLabel;
    m_stato->setObjectName(u"lblTelecamera"_s);
    m_stato->setWordWrap(true);
    m_fonte = new QComboBox;
    m_fonte->setObjectName(u"cbTelecamera"_s);
    m_fonte->setAccessibleName(u"Il robot vede"_s);
    m_fonte->addItem(u"La stanza"_s);
    m_fonte->addItem(u"Cartella di immagini…"_s);

    auto *lato = new QVBoxLayout;
    lato->addWidget(new QLabel(u"Il robot vede"_s));
    lato->addWidget(m_fonte);
    lato->addWidget(m_stato);
    lato->addStretch();
    auto *riga = new QHBoxLayout(this);
    riga->setSpacing(12);
    riga->addWidget(m_vista, 0, Qt::AlignTop);
    riga->addLayout(lato, 1);

    if (!m_robot.telecamera().cartella().isEmpty())
        m_fonte->setCurrentIndex(DaCartella);
    connect(m_fonte, &QComboBox::activated, this, &PannelloTelecamera::scelta);
    m_ritardo.setSingleShot(true);
    connect(&m_ritardo, &QTimer::timeout, this, &PannelloTelecamera::mostra);
    connect(&m_robot, &Robot::cambiato, this, &PannelloTelecamera::invecchia);
    mostra();
}

void PannelloTelecamera::invecchia()
{
    if (!m_ritardo.isActive())
        m_ritardo.start(aggiornamento);
}

void PannelloTelecamera::scelta(int indice)
{
    if (indice == DallaStanza) {
        m_robot.telecamera().impostaCartella({});
        mostra();
    } else {
        scegliCartella();
    }
}

void PannelloTelecamera::scegliCartella()
{
    const QString cartella = QFileDialog::getExistingDirectory(
        this, u"Scegli una cartella di immagini"_s, m_robot.telecamera().cartella());
    if (!cartella.isEmpty() && !m_robot.telecamera().impostaCartella(cartella))
        QMessageBox::information(this, u"Telecamera"_s,
                                 u"Nella cartella non ci sono immagini leggibili."_s);
    m_fonte->setCurrentIndex(m_robot.telecamera().cartella().isEmpty() ? DallaStanza : DaCartella);
    mostra();
}

void PannelloTelecamera::mostra()
{
    const QString cartella = m_robot.telecamera().cartella();
    m_vista->setPixmap(QPixmap::fromImage(m_robot.telecamera().guarda(
        m_robot.stato(), m_robot.stanza(), vista.width(), vista.height())));
    m_stato->setText(m_robot.stato().videoAttivo ? u"Video in corso"_s : u"Video fermo"_s);
    m_fonte->setToolTip(cartella.isEmpty() ? u"Cosa manda la telecamera"_s
                                           : QDir::toNativeSeparators(cartella));
}
} // namespace tessaro_sim
