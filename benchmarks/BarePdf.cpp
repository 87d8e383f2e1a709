// A bare program of the toolkit that writes a page such as that of 200 persons: what an export is held against.

#include <QGuiApplication>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

int main(int argc, char **argv) {
    const QGuiApplication anwendung(argc, argv);
    QPdfWriter pdf(QString::fromLocal8Bit(argv[1]));
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageOrientation(QPageLayout::Landscape);
    QPainter p(&pdf);
    for (int i = 0; i < 200; ++i) {
        const int x = i % 20 * 600;
        const int y = i / 20 * 700;
        p.setBrush(QColor(192, 209, 226));
        if (i % 2 == 0) p.drawRect(x, y, 250, 250);
        else p.drawEllipse(x, y, 250, 250);
        for (int k = 0; k < 4; ++k) p.drawLine(x + 125, y + 250, x + 125 + 60 * k, y + 400);
        QFont schrift(QStringLiteral("Arial"), 6);
        schrift.setBold(true);
        p.setFont(schrift);
        p.drawText(x, y + 350, QStringLiteral("Person %1").arg(i));
        p.drawText(x, y + 450, QStringLiteral("Müller"));
        schrift.setBold(false);
        p.setFont(schrift);
        p.drawText(x + 60, y + 150, QString::number(i));
    }
    return p.end() ? 0 : 1;
}
