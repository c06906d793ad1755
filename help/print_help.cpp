// kolvar_print_help: prints a help document from HTML to a PDF of A4 pages. Its pictures are looked for in a folder
// given apart, as they are made by the build.
#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <iostream>
#include <vector>

namespace {

constexpr int dots_per_inch = 600;
constexpr double screen_dots_per_inch = 96, millimetres_per_inch = 25.4;
constexpr double margin = 20, footer = 8;  // mm

// A document that remembers which pictures it did not find.
class HelpDocument : public QTextDocument {
public:
    explicit HelpDocument(QString folder) : folder_(std::move(folder)) {}
    QStringList missing;

protected:
    QVariant loadResource(int type, const QUrl& name) override {
        if (type != QTextDocument::ImageResource) return {};
        const QImage picture(folder_ + QLatin1Char('/') + name.toString());
        if (picture.isNull()) missing.append(name.toString());
        return picture;
    }

private:
    QString folder_;
};

constexpr auto style = R"(
h1 { font-size: 20pt; margin-bottom: 10px; }
h2 { font-size: 14pt; margin-top: 18px; margin-bottom: 6px; }
h3 { font-size: 11pt; margin-top: 12px; margin-bottom: 4px; }
pre { font-family: monospace; font-size: 8.5pt; background-color: #f2f2f2; }
code, tt { font-family: monospace; font-size: 9pt; }
)";

int refuse(const QString& source, const QString& why) {
    std::cerr << source.toStdString() << ": " << why.toStdString() << "\n";
    return 1;
}

double dots(double millimetres) { return millimetres / millimetres_per_inch * dots_per_inch; }

// Pictures have two dots for each dot of a screen. One without a width takes that of the screen; none is wider than the
// page.
void fit_pictures(HelpDocument& document) {
    struct Place {
        int from, to;
        QTextImageFormat format;
    };
    std::vector<Place> places;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment text = part.fragment();
            const QTextImageFormat format = text.charFormat().toImageFormat();
            if (format.isValid()) places.push_back({text.position(), text.position() + text.length(), format});
        }
    const double widest = (QPageSize(QPageSize::A4).size(QPageSize::Millimeter).width() - 2 * margin) /
                          millimetres_per_inch * screen_dots_per_inch;
    for (Place& place : places) {
        const auto picture = document.resource(QTextDocument::ImageResource, place.format.name()).value<QImage>();
        if (picture.isNull()) continue;  // noted as missing
        const double wanted = place.format.width() > 0 ? place.format.width() : picture.width() / 2.0;
        const double width = std::min(wanted, widest);
        place.format.setWidth(width);
        place.format.setHeight(width * picture.height() / picture.width());
        QTextCursor cursor(&document);
        cursor.setPosition(place.from);
        cursor.setPosition(place.to, QTextCursor::KeepAnchor);
        cursor.setCharFormat(place.format);
    }
}

// No heading stays behind on a page whose text begins on the next one.
void keep_headings(QTextDocument& document, double page_height) {
    const auto page = [&](const QTextBlock& block) {  // of its first line, which may stand below the block's top
        const double top = document.documentLayout()->blockBoundingRect(block).top();
        const double line = block.layout()->lineCount() > 0 ? block.layout()->lineAt(0).y() : 0;
        return static_cast<int>((top + line) / page_height);
    };
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextBlock below = block.next();
        if (block.blockFormat().headingLevel() == 0 || !below.isValid() || page(block) == page(below)) continue;
        QTextBlockFormat format = block.blockFormat();
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(block).setBlockFormat(format);
    }
}

bool print(HelpDocument& document, const QString& target) {
    QPdfWriter writer(target);
    writer.setResolution(dots_per_inch);
    writer.setPageLayout({QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(margin, margin, margin, margin),
                          QPageLayout::Millimeter});
    const QString title = document.metaInformation(QTextDocument::DocumentTitle);
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("KOLVAR"));
    const double width = writer.width(), height = writer.height() - dots(footer);
    document.documentLayout()->setPaintDevice(&writer);
    document.setPageSize({width, height});
    keep_headings(document, height);

    QPainter painter;
    if (!painter.begin(&writer)) return false;
    for (int page = 1; page <= document.pageCount(); ++page) {
        if (page > 1 && !writer.newPage()) return false;
        const QRectF part(0, (page - 1) * height, width, height);
        painter.save();
        painter.translate(0, -part.top());
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = part.adjusted(0, 0, dots(1), -dots(0.2));  // room for the frame of a wide table
        context.palette.setColor(QPalette::Text, Qt::black);
        painter.setClipRect(context.clip);
        document.documentLayout()->draw(&painter, context);
        painter.restore();
        QFont small = document.defaultFont();
        small.setPointSizeF(8);
        painter.setFont(small);
        painter.drawText(QRectF(0, height, width, dots(footer)), Qt::AlignHCenter | Qt::AlignBottom,
                         QStringLiteral("%1 - page %2").arg(title).arg(page));
    }
    return painter.end();
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");  // paper needs no display
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    if (words.size() != 4) {
        std::cerr << "kolvar_print_help FOLDER-OF-PICTURES SOURCE.html TARGET.pdf\n";
        return 2;
    }
    const QString &source = words[2], &target = words[3];
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly)) return refuse(source, QStringLiteral("can't be read"));

    HelpDocument document(words[1]);
    QFont font;
    font.setFamilies({QStringLiteral("DejaVu Sans"), QStringLiteral("sans-serif")});
    font.setPointSizeF(9.5);
    document.setDefaultFont(font);
    document.setDocumentMargin(0);
    document.setUseDesignMetrics(true);
    document.setDefaultStyleSheet(QString::fromLatin1(style));
    document.setHtml(QString::fromUtf8(file.readAll()));
    fit_pictures(document);
    if (document.metaInformation(QTextDocument::DocumentTitle).trimmed().isEmpty())
        return refuse(source, QStringLiteral("has no title"));
    if (document.toPlainText().remove(QChar::ObjectReplacementCharacter).trimmed().isEmpty())
        return refuse(source, QStringLiteral("has no text"));
    if (!document.missing.isEmpty()) return refuse(source, QStringLiteral("no picture ") + document.missing.join(", "));
    if (!print(document, target)) return refuse(target, QStringLiteral("can't be written"));
    return 0;
}
