#include "simulator/window/PannelloSensori.h"
#include "simulator/robot/Robot.h"
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
    : QGroupBox(u"Sensori"_s, parent), m_robot(robot)
{
    const StatoRobot &s = robot.stato();
    m_temperatura = cursore(u"cursoreTemperatura"_s, 255, s.temperatura);
    m_logica = cursore(u"cursoreBatteriaLogica"_s, 255, s.batteriaLogica);
    m_motori = cursore(u"cursoreBatteriaMotori"_s, 255, s.batteriaMotori);

    auto *griglia = new QGridLayout(this);
    griglia->setHorizontalSpacing(10);
    griglia->setVerticalSpacing(7);
    griglia->setColumnStretch(1, 1);
    int riga = 0;
    for (const auto &[nome, barra, testo] :
         {std::tuple{u"Temperatura"_s, m_temperatura, &m_testoTemperatura},
          {u"Batteria logica"_s, m_logica, &m_testoLogica},
          {u"Batteria motori"_s, m_motori, &m_testoMotori}}) {
        *testo = new QLabel;
        // Room for the longest text, so that the sliders do not change their width.
        (*testo)->setMinimumWidth(fontMetrics().horizontalAdvance(u"255  scarichissima"_s) + 4);
        griglia->addWidget(new QLabel(nome), riga, 0);
        barra->setAccessibleName(nome);
        griglia->addWidget(barra, riga, 1);
        griglia->addWidget(*testo, riga, 2);
        ++riga;
    }
    m_testoTemperatura->setObjectName(u"lblTemperatura"_s);
    m_testoLogica->setObjectName(u"lblBatteriaLogica"_s);
    m_testoMotori->setObjectName(u"lblBatteriaMotori"_s);

    auto *ostacoli = new QHBoxLayout;
    ostacoli->setSpacing(14);
    for (const auto &[nome, testo, casella] :
         {std::tuple{u"opzUltrasuoniSinistro"_s, u"sinistra"_s, &m_sinistro},
          {u"opzUltrasuoniCentrale"_s, u"centro"_s, &m_centrale},
          {u"opzUltrasuoniDestro"_s, u"destra"_s, &m_destro}}) {
        *casella = new QCheckBox(testo);
        (*casella)->setObjectName(nome);
        ostacoli->addWidget(*casella);
        connect(*casella, &QCheckBox::toggled, this, &PannelloSensori::misurato);
    }
    ostacoli->addStretch();
    griglia->addWidget(new QLabel(u"Ostacoli"_s), riga, 0);
    griglia->addLayout(ostacoli, riga, 1, 1, 2);

    m_dallaStanza = new QCheckBox(u"gli ostacoli sono quelli della stanza"_s);
    m_dallaStanza->setObjectName(u"opzDallaStanza"_s);
    griglia->addWidget(m_dallaStanza, riga + 1, 1, 1, 2);
    connect(m_dallaStanza, &QCheckBox::toggled, this, [this](bool attivo) {
        m_robot.impostaUltrasuoniDallaStanza(attivo);
        for (QCheckBox *casella : {m_sinistro, m_centrale, m_destro})
            casella->setEnabled(!attivo);
    });

    connect(m_temperatura, &QSlider::valueChanged, this,
            [this](int v) { m_robot.impostaTemperatura(v); });
    for (QSlider *batteria : {m_logica, m_motori}) {
        connect(batteria, &QSlider::valueChanged, this,
                [this] { m_robot.impostaBatterie(m_logica->value(), m_motori->value()); });
    }
    connect(&m_robot, &Robot::cambiato, this, &PannelloSensori::mostra);
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
    m_robot.impostaUltrasuoni(m_destro->isChecked() ? 255 : 0, m_centrale->isChecked() ? 255 : 0,
                              m_sinistro->isChecked() ? 255 : 0);
}

// The robot's values may change elsewhere too: the controls follow without answering.
void PannelloSensori::mostra()
{
    const StatoRobot &s = m_robot.stato();
    const auto porta = [](QSlider *barra, int valore) {
        const QSignalBlocker fermo(barra);
        barra->setValue(valore);
    };
    porta(m_temperatura, s.temperatura);
    porta(m_logica, s.batteriaLogica);
    porta(m_motori, s.batteriaMotori);
    m_testoTemperatura->setText(u"%1 °C"_s.arg(s.temperatura));
    m_testoLogica->setText(livello(s.batteriaLogica));
    m_testoMotori->setText(livello(s.batteriaMotori));
    const std::array<QCheckBox *, 3> caselle{m_destro, m_centrale, m_sinistro};
    for (std::size_t i = 0; i < 3; ++i) {
        const QSignalBlocker fermo(caselle[i]);
        caselle[i]->setChecked(s.ultrasuoni[i] != 0);
    }
}
} // namespace tessaro_sim
