#include "Stile.h"

#include "Disegni.h"

#include <QGuiApplication>
#include <QStyleOptionButton>

using namespace Qt::StringLiterals;

namespace {

QStringView disegnoDi(QStyle::StandardPixmap quale)
{
    switch (quale) {
    case QStyle::SP_MessageBoxInformation:
        return u"messaggio_informazione";
    case QStyle::SP_MessageBoxQuestion:
        return u"messaggio_domanda";
    case QStyle::SP_MessageBoxCritical:
        return u"messaggio_stop";
    case QStyle::SP_MessageBoxWarning:
        return u"messaggio_attenzione";
    case QStyle::SP_ArrowBack:
    case QStyle::SP_FileDialogBack:
        return u"dialogo_indietro";
    case QStyle::SP_ArrowForward:
        return u"dialogo_avanti";
    case QStyle::SP_FileDialogToParent:
        return u"dialogo_su";
    case QStyle::SP_FileDialogNewFolder:
        return u"dialogo_cartella_nuova";
    case QStyle::SP_FileDialogListView:
        return u"dialogo_elenco";
    case QStyle::SP_FileDialogDetailedView:
        return u"dialogo_dettagli";
    case QStyle::SP_DirIcon:
    case QStyle::SP_DirOpenIcon:
    case QStyle::SP_DirClosedIcon:
    case QStyle::SP_DirHomeIcon:
        return u"cartella";
    case QStyle::SP_FileIcon:
        return u"documento";
    case QStyle::SP_ComputerIcon:
    case QStyle::SP_DriveHDIcon:
        return u"computer";
    default:
        return {};
    }
}

} // namespace

Stile::Stile() : QProxyStyle(u"Fusion"_s) {}

QIcon Stile::standardIcon(StandardPixmap quale, const QStyleOption *opzione,
                          const QWidget *controllo) const
{
    const QStringView nome = disegnoDi(quale);
    if (nome.isEmpty())
        return QProxyStyle::standardIcon(quale, opzione, controllo);
    QIcon &disegno = m_disegni[{nome.toString(), qGuiApp->devicePixelRatio()}];
    if (disegno.isNull())
        disegno = Disegni::icona(nome);
    return disegno;
}

int Stile::styleHint(StyleHint quale, const QStyleOption *opzione, const QWidget *controllo,
                     QStyleHintReturn *risposta) const
{
    // What the buttons say is enough.
    if (quale == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(quale, opzione, controllo, risposta);
}

QSize Stile::sizeFromContents(ContentsType quale, const QStyleOption *opzione,
                              const QSize &contenuto, const QWidget *controllo) const
{
    QSize misura = QProxyStyle::sizeFromContents(quale, opzione, contenuto, controllo);
    const auto *pulsante = qstyleoption_cast<const QStyleOptionButton *>(opzione);
    if (quale == CT_PushButton && pulsante && !pulsante->text.isEmpty()) {
        // Fusion leaves a text that is longer than the usual no room at its sides.
        constexpr int respiro = 12;
        misura.setWidth(qMax(misura.width(), contenuto.width() + 2 * respiro));
    }
    return misura;
}
