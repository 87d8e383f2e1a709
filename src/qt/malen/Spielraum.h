#pragma once

#include <QByteArray>
#include <QImage>

#include <new>

namespace kw {

/// Throws std::bad_alloc unless there is memory to draw a page: the toolkit and the encoders crash, or speak for
/// themselves, when they run out of it on the way. Of what is asked for nothing is touched.
inline void SpielraumVerlangen(qsizetype außerdem = 0) {
    constexpr qsizetype Immer = qsizetype{32} << 20; // bytes; fonts, the painter's and the encoder's own
    [[maybe_unused]] const QByteArray probe(Immer + außerdem, Qt::Uninitialized);
}

/// The same for a picture that is to be drawn on, and encoded.
inline void SpielraumVerlangen(const QImage &bild) {
    if (bild.isNull()) throw std::bad_alloc();
    SpielraumVerlangen(bild.sizeInBytes() / 8);
}

} // namespace kw
