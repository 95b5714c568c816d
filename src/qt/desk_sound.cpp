#include "qt/desk_sound.h"

#include <QUrl>

namespace qt {

void DeskSound::play(std::string_view path)
{
    if (!files_.is_file(path)) {
        return;
    }
    if (!effect_) {
        effect_ = std::make_unique<QSoundEffect>();
    }
    effect_->setSource(QUrl::fromLocalFile(files_.real(path)));
    effect_->play();
}

} // namespace qt
