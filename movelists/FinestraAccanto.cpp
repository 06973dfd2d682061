#include "movelists/FinestraAccanto.h"

#include "controls/Finestra.h"
#include "movelists/PostoAccanto.h"

#include <QApplication>
#include <QLayout>
#include <QScreen>
#include <QWindow>

namespace {

// Layout units: the gap between the two windows, and how much higher the second one begins.
constexpr double distanza = 200;
constexpr double piuInAlto = 1300;

// The frame that the window system puts around a window. It is known only while a window is shown:
// before that the frame of another window of the program is taken.
QMargins cornice(const QWidget &finestra)
{
    const auto sua = [](const QWidget &quale) {
        return quale.windowHandle() ? quale.windowHandle()->frameMargins() : QMargins();
    };
    if (const QMargins propria = sua(finestra); !propria.isNull())
        return propria;
    for (const QWidget *altra : QApplication::topLevelWidgets()) {
        if (altra->isVisible() && qobject_cast<const Finestra *>(altra) && !sua(*altra).isNull())
            return sua(*altra);
    }
    return {};
}

QList<QRect> schermi()
{
    QList<QRect> liberi;
    for (const QScreen *schermo : QGuiApplication::screens())
        liberi += schermo->availableGeometry();
    return liberi;
}

} // namespace

void FinestraAccanto::colloca()
{
    // Wide letters widen the window when it is shown: its final size is needed here.
    m_finestra.ensurePolished();
    m_finestra.layout()->activate();
    metti(postoAccanto({Unita::pixel(m_altra.Left()), Unita::pixel(m_altra.Top()),
                        Unita::pixel(m_altra.Width()), 1},
                       m_finestra.size().grownBy(cornice(m_finestra)),
                       {Unita::pixel(distanza), Unita::pixel(piuInAlto)}, schermi()));
}

// On the screen, the frame included.
void FinestraAccanto::metti(const QRect &conCornice)
{
    const QMargins bordi = cornice(m_finestra);
    if (m_finestra.windowHandle()) {
        m_finestra.setGeometry(conCornice.marginsRemoved(bordi));
    } else {
        m_finestra.resize(conCornice.size().shrunkBy(bordi));
        m_finestra.move(conCornice.topLeft());
    }
}

void FinestraAccanto::mostrata()
{
    m_daRivedere = true;
}

void FinestraAccanto::rivedi()
{
    if (!m_daRivedere)
        return;
    m_daRivedere = false;
    if (m_finestra.WindowState() != 0)
        return;
    const QRect conCornice = m_finestra.geometry().marginsAdded(cornice(m_finestra));
    if (const QRect visibile = riportata(conCornice, schermi()); visibile != conCornice)
        metti(visibile);
}
