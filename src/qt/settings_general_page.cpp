#include "qt/settings_general_page.h"

#include "qt/parts.h"
#include "qt/style.h"

#include <QBoxLayout>
#include <QGridLayout>

namespace qt {

namespace {

using Look = Button::Look;

QBoxLayout* column_of(std::initializer_list<QWidget*> parts, int spacing)
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(spacing);
    for (QWidget* const part : parts) {
        column->addWidget(part);
    }
    return column;
}

} // namespace

SettingsGeneralPage::SettingsGeneralPage(Units const& units)
    : friendlyname(words("My Name"), this), Command1(Look::plain, units, this),
      portlisten(words("IM Listening Port"), this), Command2(Look::plain, units, this),
      portsend(words("IM Sending Port"), this), Command3(Look::plain, units, this),
      chatport1(words("First chat port"), this), btnChatPort1(Look::plain, units, this),
      chatport2(words("Second chat port"), this), btnChatPort2(Look::plain, units, this),
      Frame1(this), localinfo(&Frame1), soundon(units, this), wavefile(this),
      btnSoundFile(Look::plain, units, this), Command6(Look::plain, units, this),
      replytoall(units, this), myown(units, this), showme(units, this), autostartup(units, this),
      ontop(units, this), startminimized(units, this), userlistfont(units, this),
      watchdog(units, this), startclearusers(units, this), resetports(units, this),
      entersend(units, this), hidetip(units, this), msgfontsize(this), autocheckusers(units, this),
      units_(units)
{
    name_all();
    describe_parts();
    lay_out();
}

void SettingsGeneralPage::name_all()
{
    name_parts({{&friendlyname, "friendlyname"},
                {&Command1, "Command1"},
                {&portlisten, "portlisten"},
                {&Command2, "Command2"},
                {&portsend, "portsend"},
                {&Command3, "Command3"},
                {&chatport1, "chatport1"},
                {&btnChatPort1, "btnChatPort1"},
                {&chatport2, "chatport2"},
                {&btnChatPort2, "btnChatPort2"},
                {&Frame1, "Frame1"},
                {&localinfo, "localinfo"},
                {&soundon, "soundon"},
                {&wavefile, "wavefile"},
                {&btnSoundFile, "btnSoundFile"},
                {&Command6, "Command6"},
                {&replytoall, "replytoall"},
                {&myown, "myown"},
                {&showme, "showme"},
                {&autostartup, "autostartup"},
                {&ontop, "ontop"},
                {&startminimized, "startminimized"},
                {&userlistfont, "userlistfont"},
                {&watchdog, "watchdog"},
                {&startclearusers, "startclearusers"},
                {&resetports, "resetports"},
                {&entersend, "entersend"},
                {&hidetip, "hidetip"},
                {&msgfontsize, "msgfontsize"},
                {&autocheckusers, "autocheckusers"}});
}

void SettingsGeneralPage::describe_parts()
{
    for (auto const& [button, what] : std::initializer_list<std::pair<QWidget*, char const*>>{
             {&Command1, "Change my name"},
             {&Command2, "Change the listening port"},
             {&Command3, "Change the sending port"},
             {&btnChatPort1, "Change the first chat port"},
             {&btnChatPort2, "Change the second chat port"},
             {&btnSoundFile, "Select the sound file"},
             {&Command6, "Play the sound file"},
         }) {
        button->setAccessibleDescription(words(what));
    }
    wavefile.setAccessibleName(words("Sound file"));
    wavefile.setReadOnly(true);
    msgfontsize.setAccessibleName(words("Default font size"));
    msgfontsize.addItems({words("8"), words("10"), words("12"), words("14"), words("16")});
    localinfo.setAccessibleName(words("Program and network"));
    localinfo.setTextFormat(Qt::PlainText);
    localinfo.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    localinfo.setFocusPolicy(Qt::StrongFocus);
}

void SettingsGeneralPage::lay_out()
{
    auto* const panel = new QVBoxLayout(&Frame1);
    panel->setContentsMargins(px(units_, 10), px(units_, 6), px(units_, 10), px(units_, 8));
    panel->addWidget(&localinfo);
    panel->addStretch(1);

    auto* const top = new QHBoxLayout;
    top->setSpacing(px(units_, 18));
    top->addLayout(identity(), 1);
    top->addWidget(&Frame1, 1);

    auto* const options = new QHBoxLayout;
    options->setSpacing(px(units_, 18));
    options->addLayout(left_options(), 1);
    options->addLayout(right_options(), 1);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(px(units_, 4), px(units_, 10), px(units_, 4), px(units_, 4));
    column->setSpacing(px(units_, 10));
    column->addLayout(top);
    column->addLayout(sound_row());
    column->addLayout(options);
    column->addStretch(1);
}

QGridLayout* SettingsGeneralPage::identity()
{
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(px(units_, 8));
    grid->setVerticalSpacing(px(units_, 5));
    grid->setColumnStretch(1, 1);
    auto const add = [this, grid](char const* title, LineLabel& value, Button& change) {
        int const row = grid->rowCount();
        QFont bold = value.font();
        bold.setBold(true);
        value.setFont(bold);
        grid->addWidget(still_text(title, this), row, 0);
        grid->addWidget(&value, row, 1);
        grid->addWidget(&change, row, 2);
    };
    add("My Name", friendlyname, Command1);
    add("IM Listening Port", portlisten, Command2);
    add("IM Sending Port", portsend, Command3);
    add("Chat ports", chatport1, btnChatPort1);
    add("", chatport2, btnChatPort2);
    return grid;
}

QBoxLayout* SettingsGeneralPage::sound_row()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(px(units_, 6));
    row->addWidget(still_text("Sound file", this));
    row->addWidget(&wavefile, 1);
    row->addWidget(&btnSoundFile);
    row->addWidget(&Command6);
    auto* const column = column_of({&soundon}, px(units_, 4));
    column->addLayout(row);
    return column;
}

QBoxLayout* SettingsGeneralPage::left_options()
{
    auto* const column = column_of(
        {&replytoall, &myown, &showme, &entersend, &hidetip, &userlistfont, &ontop}, px(units_, 3));
    column->addLayout(font_row());
    column->addStretch(1);
    return column;
}

QBoxLayout* SettingsGeneralPage::right_options()
{
    auto* const note =
        still_text("(Use only if you have trouble sending or receiving messages)", this);
    note->setWordWrap(true);
    auto* const column = column_of({&autostartup, &startminimized, &startclearusers,
                                    &autocheckusers, &watchdog, &resetports, note},
                                   px(units_, 3));
    column->addStretch(1);
    return column;
}

QBoxLayout* SettingsGeneralPage::font_row()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(px(units_, 8));
    row->addWidget(still_text("Default font size", this));
    row->addWidget(&msgfontsize);
    row->addStretch(1);
    return row;
}

QList<QWidget*> SettingsGeneralPage::tab_order()
{
    return {&Command1,        &Command2,       &Command3,    &btnChatPort1, &btnChatPort2,
            &localinfo,       &soundon,        &wavefile,    &btnSoundFile, &Command6,
            &replytoall,      &myown,          &showme,      &entersend,    &hidetip,
            &userlistfont,    &ontop,          &msgfontsize, &autostartup,  &startminimized,
            &startclearusers, &autocheckusers, &watchdog,    &resetports};
}

} // namespace qt
