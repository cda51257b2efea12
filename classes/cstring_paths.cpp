// CSTRING: joining paths and taking them apart.
#include "cvutil32/cstring.h"

#include "classes/charwalk.h"

#include <algorithm>

using charwalk::kAll;

CSTRING const& CSTRING::AppendSubdir(char const* part) {
    if (!StandardEntry() || !part) {
        return *this;
    }
    // The separator may move the block that a part of the own text lies in.
    if (part >= Buffer && part < Buffer + BufLen) {
        CSTRING const copy(part);
        return AppendSubdir(copy.Buffer);
    }
    if (GetRef(StrLen - 1) != '\\' && *part != '\\') {
        Append('\\');
    }
    return Append(part);
}

CSTRING const& CSTRING::AppendFile(char const* part) {
    return AppendSubdir(part);
}

CSTRING const& CSTRING::MakePath(char const* drive, char const* dir, char const* name, char const* ext) {
    if (!StandardEntry()) {
        return *this;
    }
    // Built aside: any part may be the own text.
    CSTRING path("");
    if (drive && *drive) {
        path.Append(*drive);
        path.Append(':');
    }
    if (dir && *dir) {
        path.Append(dir);
        if (path.GetChar(kAll) != '\\') {
            path.Append("\\");
        }
    }
    if (name) {
        path.Append(name);
    }
    if (ext) {
        // The look is at the text, not at the extension; callers rely on it.
        if (path.GetChar(0) != '.') {
            path.Append(".");
        }
        path.Append(ext);
    }
    Copy(path.Buffer, path.ByteCount);
    return *this;
}

void CSTRING::CopyPart(CSTRING const& from, unsigned int start, unsigned int end) {
    Copy(from.Buffer + start, end - start);
}

void CSTRING::QuotePart() {
    if (Find(' ', 0) != kAll || Find(';', 0) != kAll) {
        Insert('"', 0);
        Append('"');
    }
}

CSTRING const& CSTRING::SplitPath(CSTRING* drive, CSTRING* dir, CSTRING* name, CSTRING* ext) const {
    if (!StandardEntry()) {
        return *this;
    }
    CSTRING path;
    path = *this;
    path.Replace("\"", "", 1);
    std::uint32_t dirStart = 0;
    std::uint32_t nameStart = 0;
    std::uint32_t dot = kAll;
    std::uint32_t end = 0;
    for (char const* place = path.Buffer; *place; place = CharNextA(place)) {
        auto const behind = static_cast<std::uint32_t>(place - path.Buffer) + 1;
        if (*place == ':') {
            dirStart = nameStart = behind;
            dot = kAll;
        } else if (*place == '\\') {
            nameStart = behind;
            dot = kAll;
        } else if (*place == '.') {
            dot = behind - 1;
        }
    }
    end = path.StrLen;
    std::uint32_t const nameEnd = std::min(dot, end);
    if (drive && drive->StandardEntry()) {
        drive->CopyPart(path, 0, dirStart);
    }
    struct Part {
        CSTRING* to;
        std::uint32_t start;
        std::uint32_t end;
    };
    for (Part const& part : {Part{dir, dirStart, nameStart}, Part{name, nameStart, nameEnd}, Part{ext, nameEnd, end}}) {
        if (part.to && part.to->StandardEntry()) {
            part.to->CopyPart(path, part.start, part.end);
            part.to->QuotePart();
        }
    }
    return *this;
}

CSTRING const& CSTRING::GetFileName(char const* path) {
    if (StandardEntry()) {
        CSTRING const whole(path);
        CSTRING ext;
        whole.SplitPath(nullptr, nullptr, this, &ext);
        Append(ext);
    }
    return *this;
}

CSTRING const& CSTRING::GetFilePath(char const* path) {
    if (StandardEntry()) {
        CSTRING const whole(path);
        CSTRING dir;
        whole.SplitPath(this, &dir, nullptr, nullptr);
        Append(dir);
    }
    return *this;
}
