#include "PannelloLinea.h"
#include "Simulatore.h"
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
    : QGroupBox(u"Linea"_s, parent), sim_(simulatore)
{
    stato_ = new QLabel;
    stato_->setObjectName(u"lblLinea"_s);
    stato_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    stato_->setFocusPolicy(Qt::StrongFocus);
    velocita_ = new QComboBox;
    velocita_->setObjectName(u"cbVelocitaLinea"_s);
    velocita_->setToolTip(u"Velocità della linea verso la console"_s);
    velocita_->setAccessibleName(velocita_->toolTip());
    for (const int baud : velocita)
        velocita_->addItem(baud > 0 ? u"%1 baud"_s.arg(baud) : u"Senza limite"_s, baud);
    if (velocita_->findData(sim_.baud()) < 0)
        velocita_->addItem(u"%1 baud"_s.arg(sim_.baud()), sim_.baud());
    velocita_->setCurrentIndex(velocita_->findData(sim_.baud()));

    silenzio_ = interruttore(u"pulSilenzio"_s, u"Silenzio"_s,
                             u"Il robot esegue i comandi ma non risponde più"_s);
    disturbi_ = interruttore(u"pulDisturbi"_s, u"Disturbi"_s,
                             u"Byte persi, doppi e sbagliati, telegrammi troncati"_s);
    stacca_ = interruttore(u"pulStacca"_s, u"Stacca il cavo"_s,
                           u"La linea sparisce finché il cavo non viene riattaccato"_s);

    auto *griglia = new QGridLayout(this);
    griglia->setHorizontalSpacing(8);
    griglia->setVerticalSpacing(8);
    griglia->addWidget(stato_, 0, 0, 1, 2);
    griglia->addWidget(velocita_, 0, 2);
    griglia->addWidget(silenzio_, 1, 0);
    griglia->addWidget(disturbi_, 1, 1);
    griglia->addWidget(stacca_, 1, 2);
    for (int colonna = 0; colonna < 3; ++colonna)
        griglia->setColumnStretch(colonna, 1);

    silenzio_->setChecked(sim_.guasti().silenzio);
    disturbi_->setChecked(sim_.guasti().persi > 0.0);
    connect(silenzio_, &QPushButton::toggled, this,
            [this](bool attivo) { sim_.guasti().silenzio = attivo; });
    connect(disturbi_, &QPushButton::toggled, this, &PannelloLinea::disturba);
    connect(stacca_, &QPushButton::toggled, this, &PannelloLinea::aggancia);
    connect(velocita_, &QComboBox::currentIndexChanged, this,
            [this] { sim_.impostaBaud(velocita_->currentData().toInt()); });
    connect(&sim_, &Simulatore::portaCambiata, this, &PannelloLinea::mostra);
    mostra();
}

void PannelloLinea::mostra()
{
    stato_->setText(sim_.percorso().isEmpty() ? u"Cavo staccato"_s
                    : sim_.portaAperta()      ? u"%1: aperta"_s.arg(sim_.percorso())
                                              : u"%1: in attesa"_s.arg(sim_.percorso()));
}

void PannelloLinea::disturba(bool attivo)
{
    Guasti &guasti = sim_.guasti();
    guasti.persi = guasti.doppi = guasti.sporchi = guasti.troncati = attivo ? pocoRumore : 0.0;
}

void PannelloLinea::aggancia(bool staccata)
{
    if (staccata) {
        sim_.sgancia();
    } else if (!sim_.riaggancia()) {
        const QSignalBlocker fermo(stacca_);
        stacca_->setChecked(true);
        QMessageBox::warning(this, u"Linea"_s, sim_.errore());
    }
    stacca_->setText(stacca_->isChecked() ? u"Riattacca il cavo"_s : u"Stacca il cavo"_s);
    mostra();
}
} // namespace tessaro_sim
