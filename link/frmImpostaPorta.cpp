#include "link/frmImpostaPorta.h"

#include <QGridLayout>

using namespace Qt::StringLiterals;

frmImpostaPorta::frmImpostaPorta()
    : Finestra(u"frmImpostaPorta"_s, u"Imposta porta COM"_s),
      Label1(u"Label1"_s, this, u"Numero della porta COM a cui è collegato Tessaro:"_s),
      txtPorta(u"txtPorta"_s, this),
      SuGiu(u"SuGiu"_s, this, NumeroPorta::Minimo, NumeroPorta::Massimo, NumeroPorta::Minimo),
      pulOK(u"pulOK"_s, this, u"OK"_s),
      m_numeroPorta(*this, txtPorta, SuGiu)
{
    Label1.setWordWrap(true);
    txtPorta.setAccessibleName(u"Numero della porta COM"_s);
    txtPorta.setFixedWidth(48);
    txtPorta.setAlignment(Qt::AlignRight);
    SuGiu.setFixedHeight(txtPorta.sizeHint().height());
    setDialogo();
    setPredefinito(&pulOK);

    auto *griglia = new QGridLayout(this);
    griglia->setContentsMargins(16, 16, 16, 16);
    griglia->setHorizontalSpacing(0);
    griglia->setVerticalSpacing(14);
    griglia->addWidget(&Label1, 0, 0, 1, 4);
    griglia->addWidget(&txtPorta, 1, 0);
    griglia->addWidget(&SuGiu, 1, 1);
    griglia->setColumnStretch(2, 1);
    griglia->addWidget(&pulOK, 1, 3);
    resize(320, 110);
    Disegno();
    m_numeroPorta.conOK(pulOK);
    pulOK.Click.collega(this, &frmImpostaPorta::pulOK_Click);
}

void frmImpostaPorta::Disegno()
{
    setTag({});
    txtPorta.setText(u"1"_s);
    SuGiu.setValue(1);
}

void frmImpostaPorta::Activate()
{
    m_numeroPorta.inizia();
}

void frmImpostaPorta::pulOK_Click()
{
    if (m_numeroPorta.conferma() == NumeroPorta::Conferma::Valido)
        Nascondi();
}
