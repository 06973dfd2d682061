#include "PannelloTelecamera.h"
#include "Robot.h"
#include "Telecamera.h"
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
    : QGroupBox(u"Telecamera"_s, parent), robot_(robot)
{
    vista_ = new QLabel;
    vista_->setObjectName(u"imgTelecamera"_s);
    vista_->setFixedSize(vista);
    stato_ = new QLabel;
    stato_->setObjectName(u"lblTelecamera"_s);
    stato_->setWordWrap(true);
    fonte_ = new QComboBox;
    fonte_->setObjectName(u"cbTelecamera"_s);
    fonte_->setAccessibleName(u"Il robot vede"_s);
    fonte_->addItem(u"La stanza"_s);
    fonte_->addItem(u"Cartella di immagini…"_s);

    auto *lato = new QVBoxLayout;
    lato->addWidget(new QLabel(u"Il robot vede"_s));
    lato->addWidget(fonte_);
    lato->addWidget(stato_);
    lato->addStretch();
    auto *riga = new QHBoxLayout(this);
    riga->setSpacing(12);
    riga->addWidget(vista_, 0, Qt::AlignTop);
    riga->addLayout(lato, 1);

    if (!robot_.telecamera().cartella().isEmpty())
        fonte_->setCurrentIndex(DaCartella);
    connect(fonte_, &QComboBox::activated, this, &PannelloTelecamera::scelta);
    ritardo_.setSingleShot(true);
    connect(&ritardo_, &QTimer::timeout, this, &PannelloTelecamera::mostra);
    connect(&robot_, &Robot::cambiato, this, &PannelloTelecamera::invecchia);
    mostra();
}

void PannelloTelecamera::invecchia()
{
    if (!ritardo_.isActive())
        ritardo_.start(aggiornamento);
}

void PannelloTelecamera::scelta(int indice)
{
    if (indice == DallaStanza) {
        robot_.telecamera().impostaCartella({});
        mostra();
    } else {
        scegliCartella();
    }
}

void PannelloTelecamera::scegliCartella()
{
    const QString cartella = QFileDialog::getExistingDirectory(
        this, u"Scegli una cartella di immagini"_s, robot_.telecamera().cartella());
    if (!cartella.isEmpty() && !robot_.telecamera().impostaCartella(cartella))
        QMessageBox::information(this, u"Telecamera"_s,
                                 u"Nella cartella non ci sono immagini leggibili."_s);
    fonte_->setCurrentIndex(robot_.telecamera().cartella().isEmpty() ? DallaStanza : DaCartella);
    mostra();
}

void PannelloTelecamera::mostra()
{
    const QString cartella = robot_.telecamera().cartella();
    vista_->setPixmap(QPixmap::fromImage(robot_.telecamera().guarda(
        robot_.stato(), robot_.stanza(), vista.width(), vista.height())));
    stato_->setText(robot_.stato().videoAttivo ? u"Video in corso"_s : u"Video fermo"_s);
    fonte_->setToolTip(cartella.isEmpty() ? u"Cosa manda la telecamera"_s
                                          : QDir::toNativeSeparators(cartella));
}
} // namespace tessaro_sim
