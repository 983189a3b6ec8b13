// Benchmarks of the widgets for other programs against Qt's own labels.
#include <QApplication>
#include <QLabel>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#include <lumenkit/widgets/vlabel.h>
#include <malloc.h>

#include "bench/marked_texts.h"
#include "bench/qt_stage.h"
#include "bench/ratio_table.h"
#include "bench/require.h"

namespace {

using lumenkit::bench::AddComparison;
using lumenkit::bench::Marked;
using lumenkit::bench::QtStage;
using lumenkit::bench::Ratio;
using lumenkit::bench::Side;
using lumenkit::widgets::VLabel;

constexpr int labelCount = 1'000;
constexpr int columns = 20;
constexpr QSize labelSize(60, 30);

using MakeLabel = std::function<QWidget*(const Marked& text, QWidget* window)>;

QWidget* MakeOurs(const Marked& text, QWidget* window) {
    auto* const label = new VLabel(window);
    label->setCaption(
        QString::fromUtf16(text.caption.data(), static_cast<qsizetype>(text.caption.size())));
    return label;
}

QWidget* MakeOther(const Marked& text, QWidget* window) {
    auto* const label = new QLabel(window);
    label->setTextFormat(Qt::RichText);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setText(QString::fromStdString(text.html));
    return label;
}

const std::vector<Marked>& Texts() {
    static const std::vector<Marked> texts = lumenkit::bench::Texts(120, 7);
    return texts;
}

std::unique_ptr<QWidget> EmptyWindow() {
    auto window = std::make_unique<QWidget>();
    window->resize(labelSize.width() * columns, labelSize.height() * labelCount / columns);
    return window;
}

void AddLabels(const MakeLabel& make, QWidget* window) {
    for (int index = 0; index < labelCount; ++index) {
        const std::size_t text = static_cast<std::size_t>(index) % Texts().size();
        QWidget* const label = make(Texts()[text], window);
        label->setGeometry(
            {QPoint(index % columns * labelSize.width(), index / columns * labelSize.height()),
             labelSize});
        label->show();
    }
}

Side Showing(MakeLabel make) {
    return {[make = std::move(make)] {
                const auto window = EmptyWindow();
                AddLabels(make, window.get());
                window->show();
                QApplication::processEvents();
            },
            labelCount};
}

// Bytes of a label that has been painted. The pixels of the window are not counted.
double MemoryOf(const MakeLabel& make) {
    const auto window = EmptyWindow();
    window->show();
    QApplication::processEvents();
    const std::size_t before = mallinfo2().uordblks;
    AddLabels(make, window.get());
    QApplication::processEvents();
    return static_cast<double>(mallinfo2().uordblks - before) / labelCount;
}

}  // namespace

int main(int argc, char** argv) {
    const QtStage stage;
    AddComparison({"Qt: make and show 1,000 labels of 120 units, against QLabel with rich text",
                   "label", Showing(MakeOurs), Showing(MakeOther), Ratio::TimesFaster, ">= 3x"});
    const int status = lumenkit::bench::RunComparisons(argc, argv);
    MemoryOf(MakeOurs);  // what is kept for the next time
    MemoryOf(MakeOther);
    const double ours = MemoryOf(MakeOurs);
    const double other = MemoryOf(MakeOther);
    std::printf("| (memory of such a label) | %.0f B | %.0f B | %.2fx | | <= 0.33x |\n", ours,
                other, ours / other);
    return status;
}
