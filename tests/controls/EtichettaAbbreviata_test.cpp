// A label whose text is too long for it.
#include "controls/EtichettaAbbreviata.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(EtichettaAbbreviata, ShowsTheTextThatFitsAndAnEllipsis)
{
    QWidget dentro;
    EtichettaAbbreviata nome(u"lblNomeFoto"_s, &dentro);
    Etichetta tagliata(u"lblTagliata"_s, &dentro);
    for (Etichetta *etichetta : {static_cast<Etichetta *>(&nome), &tagliata}) {
        etichetta->Size(1500, 300);
        etichetta->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    }
    const QString lungo = u"un nome molto molto molto lungo.jpg"_s;
    nome.setCaption(lungo);
    EXPECT_EQ(nome.Caption(), lungo);
    const QString corto = nome.fontMetrics().elidedText(lungo, Qt::ElideRight, nome.width());
    ASSERT_TRUE(corto.endsWith(u'…'));
    tagliata.setCaption(corto);
    EXPECT_EQ(nome.grab().toImage(), tagliata.grab().toImage());
    nome.setCaption(u"a.jpg"_s);
    EXPECT_NE(nome.grab().toImage(), tagliata.grab().toImage());
    tagliata.setCaption(u"a.jpg"_s);
    EXPECT_EQ(nome.grab().toImage(), tagliata.grab().toImage());
}
