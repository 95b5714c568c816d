#include "qt/desk_boxes.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>

namespace qt {

QString DeskBoxes::shown(std::string_view words) const
{
    return codec_.to_unicode(words).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QWidget* DeskBoxes::parent() const
{
    return owner != nullptr && owner->isVisible() && !owner->isMinimized() ? owner : nullptr;
}

platform::Answer DeskBoxes::show(platform::MessageBox const& box)
{
    QMessageBox window(parent());
    window.setTextFormat(Qt::PlainText);
    window.setWindowTitle(shown(box.title));
    window.setText(shown(box.text));
    switch (box.buttons) {
    case platform::Buttons::ok:
        window.setStandardButtons(QMessageBox::Ok);
        break;
    case platform::Buttons::yes_no:
        window.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        break;
    case platform::Buttons::yes_no_cancel:
        window.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    }
    if (box.icon == platform::Icon::question) {
        window.setIcon(QMessageBox::Question);
    }
    switch (window.exec()) {
    case QMessageBox::Yes:
        return platform::Answer::yes;
    case QMessageBox::No:
        return platform::Answer::no;
    case QMessageBox::Ok:
        return platform::Answer::ok;
    default:
        return platform::Answer::cancel;
    }
}

std::string DeskBoxes::ask(platform::InputBox const& box)
{
    QInputDialog window(parent());
    window.setWindowTitle(shown(box.title));
    window.setLabelText(shown(box.prompt));
    window.findChild<QLabel*>()->setTextFormat(Qt::PlainText);
    window.setTextValue(shown(box.default_text));
    return window.exec() == QDialog::Accepted ? codec_.from_unicode(window.textValue())
                                              : std::string();
}

std::string DeskBoxes::choose_file(platform::FileBox const& box)
{
    QFileDialog window(parent(), shown(box.title));
    window.setFileMode(QFileDialog::ExistingFile);
    // The names tell their patterns themselves; what filters stands behind them, out of sight. All
    // files are those without a point, too.
    window.setOption(QFileDialog::HideNameFilterDetails);
    auto const wanted =
        shown(box.pattern_name) + QStringLiteral(" (") + shown(box.pattern) + QLatin1Char(')');
    window.setNameFilters({QStringLiteral("All Files (*.*) (*)"), wanted});
    window.selectNameFilter(wanted);
    window.selectFile(shown(box.present));
    if (window.exec() != QDialog::Accepted || window.selectedFiles().isEmpty()) {
        return {};
    }
    return codec_.from_unicode(window.selectedFiles().constFirst());
}

} // namespace qt
