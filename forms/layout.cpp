#include "forms/layout.h"

#include <algorithm>

#include "frame/text_positions.h"

namespace lumenkit::forms::layout {

Text PropertyPrefix(TextView indentation, TextView name) {
    constexpr TextView uncounted = u"Object.";
    constexpr std::size_t column = 16;
    const std::size_t counted = name.size() - (name.starts_with(uncounted) ? uncounted.size() : 0);
    Text prefix(indentation);
    prefix += name;
    prefix.append(column - std::min(counted, column), blank);
    return prefix += u"=   ";
}

Text BeginLine(TextView indentation, TextView className, TextView name) {
    Text line(indentation);
    return line.append(u"Begin ").append(className).append(u" ").append(name) += blank;
}

Text BeginPropertyLine(TextView indentation, TextView name, TextView identifier) {
    Text line(indentation);
    line.append(u"BeginProperty ").append(name) += blank;
    return identifier.empty() ? line : line.append(identifier) += blank;
}

TextView IndentationOf(TextView line) {
    return line.substr(0, std::min(line.find_first_not_of(u" \t"), line.size()));
}

TextView LineBreakOf(TextView line) {
    return line.ends_with(crLf)    ? Right(line, 2)
           : line.ends_with(u'\n') ? Right(line, 1)
                                   : TextView();
}

}  // namespace lumenkit::forms::layout
