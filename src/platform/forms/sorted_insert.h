#pragma once

#include <QString>

// Where a sorted list puts a new item: after the last item that doesn't sort above it, comparing
// without regard to case, so equal items keep the order they came in.
template <class TextAt>
int sortedInsertPosition(int count, TextAt textAt, const QString& text)
{
    int low = 0;
    int high = count;
    while (low < high) {
        const int middle = (low + high) / 2;
        if (QString::compare(textAt(middle), text, Qt::CaseInsensitive) <= 0)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}
