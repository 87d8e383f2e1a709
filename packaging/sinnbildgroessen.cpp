// Draws the program's icon in the sizes of desktops that read no SVG: sinnbildgroessen SVG OUT SIZE [OUT SIZE ...]
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv) {
    QSvgRenderer vorlage(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    bool gelungen = vorlage.isValid();
    for (int i = 2; gelungen && i + 1 < argc; i += 2) {
        const int kante = std::atoi(argv[i + 1]);
        QImage bild(kante, kante, QImage::Format_ARGB32_Premultiplied);
        bild.fill(Qt::transparent);
        {
            QPainter maler(&bild);
            vorlage.render(&maler);
        }
        gelungen = bild.save(QString::fromLocal8Bit(argv[i]), "png");
    }
    if (!gelungen) std::fprintf(stderr, "cannot draw the icon\n");
    return gelungen ? 0 : 1;
}
