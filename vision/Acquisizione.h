// Copies a selected area out of a frame, two rows at each call, so that other events can be handled
// in between.
#pragma once

#include "vision/Matrice.h"

#include <functional>

class Acquisizione
{
public:
    // Starts a new copy. left, top, width and height are in pixels of the frame. The frame is
    // copied, so that later rows of the video do not change it.
    void inizia(const Matrice &pixel, quint8 left, quint8 top, quint8 width, quint8 height);

    // Copies the next two rows of the area and calls copiato for each pixel, with its column and
    // row in the copy, counted from 1. The colour is read at (column + left, row + top), so the
    // area lies one pixel to the right of the selection and one below it. An area of width or
    // height 0 gives one pixel in that direction. Returns true when the copy is complete. Throws
    // Matrice::FuoriIntervallo if a pixel lies outside the frame.
    bool prosegui(const std::function<void(int colonna, int riga, qint32 colore)> &copiato);

    // Whether nothing is left to copy.
    bool finita() const { return m_finita; }

private:
    Matrice m_pixel{0, 0};
    int m_colonna = 1;
    int m_riga = 1;
    int m_left = 0;
    int m_top = 0;
    int m_width = 0;
    int m_height = 0;
    bool m_finita = true;
};
