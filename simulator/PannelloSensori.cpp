#include "PannelloSensori.h"
#include "Robot.h"
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
namespace {
QString livello(int carica)
{
    const QString parola = carica <= 50    ? u"scarichissima"_s
                           : carica <= 100 ? u"scarica"_s
                           : carica <= 150 ? u"media"_s
                           : carica <= 200 ? u"carica"_s
                                           : u"carichissima"_s;
    return u"%1  %2"_s.arg(carica).arg(parola);
}
} // namespace

PannelloSensori::PannelloSensori(Robot &robot, QWidget *parent)
    : QGroupBox(u"Sensori"_s, parent), robot_(robot)
{
    const StatoRobot &s = robot.stato();
    temperatura_ = cursore(u"cursoreTemperatura"_s, 255, s.temperatura);
    logica_ = cursore(u"cursoreBatteriaLogica"_s, 255, s.batteriaLogica);
    motori_ = cursore(u"cursoreBatteriaMotori"_s, 255, s.batteriaMotori);

    auto *griglia = new QGridLayout(this);
    griglia->setHorizontalSpacing(10);
    griglia->setVerticalSpacing(7);
    griglia->setColumnStretch(1, 1);
    int riga = 0;
    for (const auto &[nome, barra, testo] :
         {std::tuple{u"Temperatura"_s, temperatura_, &testoTemperatura_},
          {u"Batteria logica"_s, logica_, &testoLogica_},
          {u"Batteria motori"_s, motori_, &testoMotori_}}) {
        *testo = new QLabel;
        // Room for the longest text, so that the sliders do not change their width.
        (*testo)->setMinimumWidth(fontMetrics().horizontalAdvance(u"255  scarichissima"_s) + 4);
        griglia->addWidget(new QLabel(nome), riga, 0);
        barra->setAccessibleName(nome);
        griglia->addWidget(barra, riga, 1);
        griglia->addWidget(*testo, riga, 2);
        ++riga;
    }
    testoTemperatura_->setObjectName(u"lblTemperatura"_s);
    testoLogica_->setObjectName(u"lblBatteriaLogica"_s);
    testoMotori_->setObjectName(u"lblBatteriaMotori"_s);

    auto *ostacoli = new QHBoxLayout;
    ostacoli->setSpacing(14);
    for (const auto &[nome, testo, casella] :
         {std::tuple{u"opzUltrasuoniSinistro"_s, u"sinistra"_s, &sinistro_},
          {u"opzUltrasuoniCentrale"_s, u"centro"_s, &centrale_},
          {u"opzUltrasuoniDestro"_s, u"destra"_s, &destro_}}) {
        *casella = new QCheckBox(testo);
        (*casella)->setObjectName(nome);
        ostacoli->addWidget(*casella);
        connect(*casella, &QCheckBox::toggled, this, &PannelloSensori::misurato);
    }
    ostacoli->addStretch();
    griglia->addWidget(new QLabel(u"Ostacoli"_s), riga, 0);
    griglia->addLayout(ostacoli, riga, 1, 1, 2);

    dallaStanza_ = new QCheckBox(u"gli ostacoli sono quelli della stanza"_s);
    dallaStanza_->setObjectName(u"opzDallaStanza"_s);
    griglia->addWidget(dallaStanza_, riga + 1, 1, 1, 2);
    connect(dallaStanza_, &QCheckBox::toggled, this, [this](bool attivo) {
        robot_.impostaUltrasuoniDallaStanza(attivo);
        for (QCheckBox *casella : {sinistro_, centrale_, destro_})
            casella->setEnabled(!attivo);
    });

    connect(temperatura_, &QSlider::valueChanged, this,
            [this](int v) { robot_.impostaTemperatura(v); });
    for (QSlider *batteria : {logica_, motori_}) {
        connect(batteria, &QSlider::valueChanged, this,
                [this] { robot_.impostaBatterie(logica_->value(), motori_->value()); });
    }
    connect(&robot_, &Robot::cambiato, this, &PannelloSensori::mostra);
    mostra();
}

QSlider *PannelloSensori::cursore(const QString &nome, int massimo, int valore)
{
    auto *barra = new QSlider(Qt::Horizontal);
    barra->setObjectName(nome);
    barra->setRange(0, massimo);
    barra->setValue(valore);
    return barra;
}

void PannelloSensori::misurato()
{
    robot_.impostaUltrasuoni(destro_->isChecked() ? 255 : 0, centrale_->isChecked() ? 255 : 0,
                             sinistro_->isChecked() ? 255 : 0);
}

// The robot's values may change elsewhere too: the controls follow without answering.
void PannelloSensori::mostra()
{
    const StatoRobot &s = robot_.stato();
    const auto porta = [](QSlider *barra, int valore) {
        const QSignalBlocker fermo(barra);
        barra->setValue(valore);
    };
    porta(temperatura_, s.temperatura);
    porta(logica_, s.batteriaLogica);
    porta(motori_, s.batteriaMotori);
    testoTemperatura_->setText(u"%1 °C"_s.arg(s.temperatura));
    testoLogica_->setText(livello(s.batteriaLogica));
    testoMotori_->setText(livello(s.batteriaMotori));
    const std::array<QCheckBox *, 3> caselle{destro_, centrale_, sinistro_};
    for (std::size_t i = 0; i < 3; ++i) {
        const QSignalBlocker fermo(caselle[i]);
        caselle[i]->setChecked(s.ultrasuoni[i] != 0);
    }
}
} // namespace tessaro_sim
