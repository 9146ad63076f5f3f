#include "player/script/Interpreter.h"
#include "player/script/commands/AllCommands.h"
#include "player/script/commands/Operands.h"

#include <QCoreApplication>

namespace player {

namespace {

constexpr int kMostPictures = 100;
constexpr int kMostFrames = 36000;

int frames(const Command &command, int place)
{
    return qBound(0, command.number(place), kMostFrames);
}

void fadeOut(Interpreter &run, const Command &command)
{
    run.state().screen.fadesToWhite = false;
    run.state().screen.fade.slideTo(1, frames(command, 0));
    run.waitTicks(frames(command, 0));
}

void fadeIn(Interpreter &run, const Command &command)
{
    run.state().screen.fade.slideTo(0, frames(command, 0));
    run.waitTicks(frames(command, 0));
}

void tint(Interpreter &run, const Command &command)
{
    Screen &screen = run.state().screen;
    const int ticks = frames(command, 4);
    screen.red.slideTo(qBound(-255, command.number(0), 255), ticks);
    screen.green.slideTo(qBound(-255, command.number(1), 255), ticks);
    screen.blue.slideTo(qBound(-255, command.number(2), 255), ticks);
    screen.grey.slideTo(qBound(0, command.number(3), 255), ticks);
    run.waitTicks(command.flag(5) ? ticks : 0);
}

void flash(Interpreter &run, const Command &command)
{
    Screen &screen = run.state().screen;
    const int ticks = frames(command, 4);
    screen.flash = QColor(qBound(0, command.number(0), 255), qBound(0, command.number(1), 255),
                          qBound(0, command.number(2), 255));
    screen.flashStrength = Sliding(qBound(0, command.number(3), 255));
    screen.flashStrength.slideTo(0, ticks);
    run.waitTicks(command.flag(5) ? ticks : 0);
}

void shake(Interpreter &run, const Command &command)
{
    Screen &screen = run.state().screen;
    screen.shakePower = qBound(1, command.number(0), 9);
    screen.shakeSpeed = qBound(1, command.number(1), 9);
    screen.shakeTicks = frames(command, 2);
    run.waitTicks(command.flag(3) ? screen.shakeTicks : 0);
}

void weather(Interpreter &run, const Command &command)
{
    Screen &screen = run.state().screen;
    const int ticks = frames(command, 2);
    const int kind = qBound(0, command.number(0), 3);
    // Weather that ends keeps its kind while it gets weaker.
    if (kind != 0) {
        screen.weather = kind;
    }
    screen.weatherPower.slideTo(kind == 0 ? 0 : qBound(1, command.number(1), 9), ticks);
    run.waitTicks(command.flag(3) ? ticks : 0);
}

bool isPicture(Interpreter &run, int number)
{
    if (number >= 1 && number <= kMostPictures) {
        return true;
    }
    run.tell(QCoreApplication::translate("TestPlay", "There is no picture %1; the numbers go from 1 to %2.")
                 .arg(number)
                 .arg(kMostPictures));
    return false;
}

void showPicture(Interpreter &run, const Command &command)
{
    if (!isPicture(run, command.number(0))) {
        return;
    }
    Picture picture;
    picture.name = command.text(1);
    picture.isCentred = command.number(2) == 1;
    picture.x = Sliding(Operands::given(run, command.number(3), command.number(4)));
    picture.y = Sliding(Operands::given(run, command.number(3), command.number(5)));
    picture.width = Sliding(qBound(-2000, command.parameters.at(6).toInt(100), 2000));
    picture.height = Sliding(qBound(-2000, command.parameters.at(7).toInt(100), 2000));
    picture.opacity = Sliding(qBound(0, command.parameters.at(8).toInt(255), 255));
    picture.blending = qBound(0, command.number(9), 2);
    run.state().screen.pictures.insert(command.number(0), picture);
}

void movePicture(Interpreter &run, const Command &command)
{
    if (!isPicture(run, command.number(0))) {
        return;
    }
    const auto found = run.state().screen.pictures.find(command.number(0));
    if (found == run.state().screen.pictures.end()) {
        run.tell(QCoreApplication::translate("TestPlay", "Picture %1 is not shown.").arg(command.number(0)));
        return;
    }
    const int ticks = frames(command, 9);
    found->isCentred = command.number(1) == 1;
    found->x.slideTo(Operands::given(run, command.number(2), command.number(3)), ticks);
    found->y.slideTo(Operands::given(run, command.number(2), command.number(4)), ticks);
    found->width.slideTo(qBound(-2000, command.parameters.at(5).toInt(100), 2000), ticks);
    found->height.slideTo(qBound(-2000, command.parameters.at(6).toInt(100), 2000), ticks);
    found->opacity.slideTo(qBound(0, command.parameters.at(7).toInt(255), 255), ticks);
    found->blending = qBound(0, command.number(8), 2);
    run.waitTicks(command.flag(10) ? ticks : 0);
}

void erasePicture(Interpreter &run, const Command &command)
{
    run.state().screen.pictures.remove(command.number(0));
}

} // namespace

void addPictureCommands(CommandTable *table)
{
    table->add(221, &fadeOut);
    table->add(222, &fadeIn);
    table->add(223, &tint);
    table->add(224, &flash);
    table->add(225, &shake);
    table->add(226, &weather);
    table->add(231, &showPicture);
    table->add(232, &movePicture);
    table->add(233, &erasePicture);
}

} // namespace player
