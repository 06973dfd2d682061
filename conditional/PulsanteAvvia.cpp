#include "conditional/PulsanteAvvia.h"

#include "art/Disegni.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView avvia = u"AVVIA";
constexpr QStringView ferma = u"STOP";

} // namespace

PulsanteAvvia::PulsanteAvvia(const QString &nome, QWidget *dentro)
    : Pulsante(nome, dentro, avvia.toString())
{
}

void PulsanteAvvia::setAzione(Azione azione, bool corsivo)
{
    enum Disegno { Spento, InAttesa };
    const bool spento = azione == Azione::Avvia;
    setCaption((spento ? avvia : ferma).toString());
    setIcon(Disegni::lstImgVigilio()[spento ? Spento : InAttesa]);
    QFont carattere = font();
    carattere.setItalic(corsivo);
    setFont(carattere);
}

void PulsanteAvvia::setCaption(const QString &testo)
{
    m_azione = testo == avvia ? Azione::Avvia : Azione::Ferma;
    Pulsante::setCaption(testo);
}
