#include "conditional/VigilioVicino.h"

#include "conditional/frmProcessor.h"

void VigilioVicino::mostra()
{
    m_processor.Mostra();
    m_processor.setWindowState(0);
    // It may be open already, behind another window.
    m_processor.raise();
    m_processor.activateWindow();
}

bool VigilioVicino::avviato() const
{
    return m_processor.avviato();
}

void VigilioVicino::Stoppa()
{
    m_processor.Stoppa();
}

int VigilioVicino::ListCount() const
{
    // Not the folder's files: they have no line where the default condition could not be read.
    return m_processor.lstFile.ListCount();
}

QString VigilioVicino::File(int riga) const
{
    return m_processor.File.List(riga);
}

QString VigilioVicino::condizione(int riga) const
{
    return m_processor.lstCondizioni.List(riga);
}

bool VigilioVicino::Selected(int riga) const
{
    return m_processor.lstFile.Selected(riga);
}

void VigilioVicino::setSelected(int riga, bool valore)
{
    m_processor.lstFile.setSelected(riga, valore);
}

void VigilioVicino::setListIndex(int riga)
{
    m_processor.lstFile.setListIndex(riga);
}

void VigilioVicino::lstFile_DblClick()
{
    m_processor.lstFile_DblClick();
}

bool VigilioVicino::deselezionaEseguite() const
{
    return m_processor.mnuOpzDeselezionaAut.Checked();
}
