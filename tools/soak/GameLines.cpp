#include "soak/GameLines.h"

QByteArray GameLines::Visitors() {
    QByteArray list = "(* Current players: Greeter";
    for (int count = Draw(30); count > 0; --count) list += ", " + Name();
    return list;
}

QByteArray GameLines::Line() {
    const QByteArray name = Name(), x = Pair(), y = Pair();
    // clang-format off
    switch (Draw(20)) {
        case 0:  return "]-#Ax%4%4%4%4%!#5\n]-#BA";
        case 1:  return "(" + name + " waves happily to everybody around";
        case 2:  return "({S} " + name + " shouts: who wants cookies?";
        case 3:  return "(You say, \"hello " + name + "\"";
        case 4:  return "([ You whisper \"hello there\" to " + name + ". ]";
        case 5:  return "]fx%4%4%4%4%!#5" + name + "\n(#BA A friendly wolf called " + name + ".";
        case 6:  return "<x%4%4%4%4%" + QByteArray(" ") + x + y + "# ";
        case 7:  return "/w#3#3#3#3# " + x + y + "# " + x + y;
        case 8:  return Visitors();
        case 9:  return "([*] " + name + " rolls 2d6 and throws: ((4) (5)) = 9.";
        case 10: return "]s" + x + y + "Small|Pond\n]t" + x + y;
        case 11: return "6" + x + y + x + y + "! " + x + y;
        case 12: return "7" + x + y + x + y + "! " + x + y;
        case 13: return "]%1" + name;
        case 14: return ";furn.map";
        case 15: return "(* " + name + " requests permission to join your company. To accept the request, `summon " + name;
        case 16: return "something that nobody knows " + name;
        default: return "(" + name + ": " + QByteArray("hello there, how is everybody today? ").repeated(1 + Draw(4));
    }
    // clang-format on
}

void GameLines::AddWhisper(Batch& batch) {
    const QByteArray words = "sync " + QByteArray::number(++whispers_), name = Name();
    batch.lines += "([ " + name + " whispers, \"" + words + "\" to you. ]\n";
    batch.answers += "wh " + name + " " + words + "\n";
    ++batch.lineCount;
    ++batch.answerCount;
}

Batch GameLines::Next() {
    Batch batch;
    while (batch.lineCount < kLinesPerBatch) {
        const QByteArray line = Line() + '\n';
        batch.lines += line;
        batch.lineCount += static_cast<int>(line.count('\n'));
        if (Draw(100) == 0) AddWhisper(batch);
        if (Draw(500) != 0) continue;
        batch.lines += "]q pond\n";
        batch.answers += "vascodagama\n";
        ++batch.lineCount;
        ++batch.answerCount;
    }
    AddWhisper(batch);
    return batch;
}
