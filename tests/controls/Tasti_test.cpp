#include "controls/Tasti.h"

#include "tests/support/Controlli.h"

#include <QKeyEvent>

TEST(Tasti, HaveTheCodesOfTheDesign)
{
    const struct
    {
        int tasto;
        int codice;
    } casi[] = {{Qt::Key_Left, 37},     {Qt::Key_Up, 38},     {Qt::Key_Right, 39},
                {Qt::Key_Down, 40},     {Qt::Key_Space, 32},  {Qt::Key_Delete, 46},
                {Qt::Key_Backspace, 8}, {Qt::Key_Return, 13}, {Qt::Key_Enter, 13},
                {Qt::Key_Escape, 27},   {Qt::Key_A, 65},      {Qt::Key_Z, 90},
                {Qt::Key_0, 48},        {Qt::Key_9, 57},      {Qt::Key_F1, 112},
                {Qt::Key_Tab, 9},       {Qt::Key_Menu, 93},   {Qt::Key_Home, 36},
                {Qt::Key_End, 35},      {Qt::Key_PageUp, 33}, {Qt::Key_PageDown, 34}};
    for (const auto &caso : casi) {
        const QKeyEvent evento(QEvent::KeyPress, caso.tasto, Qt::NoModifier);
        EXPECT_EQ(Tasti::codice(evento), caso.codice) << caso.tasto;
    }
}

TEST(Tasti, NoOtherKeyHasACodeThatTheProgramCompares)
{
    for (const int tasto : {int(Qt::Key_Percent), int(Qt::Key_Ampersand), int(Qt::Key_Apostrophe),
                            int(Qt::Key_ParenLeft), int(Qt::Key_Period), int(Qt::Key_CapsLock),
                            int(Qt::Key_unknown), 0, int(Qt::Key_Meta), int(Qt::Key_Egrave)}) {
        const QKeyEvent evento(QEvent::KeyPress, tasto, Qt::NoModifier);
        EXPECT_EQ(Tasti::codice(evento), 255) << tasto;
    }
}
