// Double clicks whose first press opens something under the pointer.
#include "controls/Elenco.h"
#include "controls/Grafica.h"
#include "tests/support/Controlli.h"

using namespace Qt::StringLiterals;

namespace {

struct SecondaPressioneTest : ::testing::Test
{
    SecondaPressioneTest()
    {
        sotto.setGeometry(0, 0, 100, 100);
        sopra.setGeometry(50, 0, 50, 100);
        sopra.AddItem(u"uno"_s);
        sopra.hide();
        sopra.Click.collega([this] { ++scelte; });
        finestra.mostraAttiva();
    }
    void doppio(QPoint dove)
    {
        QTest::mouseDClick(finestra.windowHandle(), Qt::LeftButton, {}, dove);
    }

    FinestraDiProva finestra;
    Immagine sotto{u"img"_s, &finestra};
    Elenco sopra{u"lst"_s, &finestra};
    int scelte = 0;
};

} // namespace

TEST_F(SecondaPressioneTest, DoesNotReachWhatTheFirstPressHasOpened)
{
    sotto.MouseDown.collega([this](int, int, double, double) {
        sopra.show();
        sopra.raise();
    });
    const QPoint dove = sopra.mapTo(&finestra, QPoint(10, 8));
    doppio(dove);
    EXPECT_TRUE(sopra.isVisible());
    EXPECT_EQ(scelte, 0);
    QTest::mouseClick(finestra.windowHandle(), Qt::LeftButton, {}, dove);
    EXPECT_EQ(scelte, 1) << "the next press must reach it";
}

TEST_F(SecondaPressioneTest, DoesNotAnswerTheBoxThatTheFirstPressHasOpened)
{
    int chiuse = 0;
    sotto.MouseDown.collega([&](int, int, double, double) {
        QMessageBox box(&finestra);
        box.setStandardButtons(QMessageBox::Ok);
        QTimer::singleShot(0, &box, [&] {
            QMouseEvent seconda(QEvent::MouseButtonDblClick, QPointF(5, 5), QPointF(5, 5),
                                Qt::LeftButton, Qt::LeftButton, {});
            seconda.setTimestamp(static_cast<quint64>(QTest::lastMouseTimestamp));
            QApplication::sendEvent(box.button(QMessageBox::Ok), &seconda);
            QTest::mouseRelease(box.button(QMessageBox::Ok), Qt::LeftButton);
            EXPECT_TRUE(box.isVisible());
            box.accept();
            ++chiuse;
        });
        box.exec();
    });
    QTest::mousePress(finestra.windowHandle(), Qt::LeftButton, {}, QPoint(10, 10));
    QTest::mouseRelease(finestra.windowHandle(), Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_EQ(chiuse, 1);
}

TEST_F(SecondaPressioneTest, ReachesWhatWasOpenBefore)
{
    int premute = 0;
    sotto.MouseDown.collega([&](int, int, double, double) { ++premute; });
    doppio({10, 10});
    EXPECT_EQ(premute, 2);
}
