#include "tests/support/Modali.h"

#include <QAbstractButton>
#include <QApplication>
#include <utility>

RispondiMessaggi::RispondiMessaggi(QMessageBox::StandardButton premi) : m_premi(premi)
{
    connect(&m_timer, &QTimer::timeout, this, &RispondiMessaggi::guarda);
    m_timer.start(1);
}

RispondiMessaggi::~RispondiMessaggi()
{
    if (m_ultimo)
        m_ultimo->reject();
}

QStringList RispondiMessaggi::testi() const
{
    QStringList testi;
    for (const MessaggioVisto &visto : m_visti)
        testi << visto.testo;
    return testi;
}

void RispondiMessaggi::guarda()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box || !box->isVisible())
        return;
    if (m_ultimo != box) {
        m_ultimo = box;
        m_visti.append({box->text(), box->windowTitle(), box->icon(), box->standardButtons()});
        if (mentreAperto)
            mentreAperto(*box);
    }
    // mentreAperto may have closed the box, or opened another one that was answered meanwhile.
    if (m_trattieni || !m_ultimo || !m_ultimo->isVisible())
        return;
    if (QAbstractButton *pulsante = m_ultimo->button(m_premi))
        pulsante->click();
    else
        m_ultimo->reject();
}

ConModale::ConModale(const QString &nome, std::function<void()> agisci)
{
    connect(&m_timer, &QTimer::timeout, this, [this, nome, agisci = std::move(agisci)] {
        const QWidget *modale = QApplication::activeModalWidget();
        if (m_dentro || !modale || !modale->isVisible() || modale->objectName() != nome)
            return;
        m_dentro = true;
        agisci();
        m_dentro = false;
    });
    m_timer.start(1);
}
