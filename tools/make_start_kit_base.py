"""What both halves of the start kit are made with: random numbers, plain sums, record files, tables between markers.

Random numbers, the exponential function and the summation order are our own, so every machine writes the same bytes.
"""
import math


class Random:
    """xorshift64* (Vigna 2016) and the two distributions made from it."""

    def __init__(self, seed):
        self.state = seed

    def uniform(self):
        """A number from 0 up to below 1, of 53 bits."""
        x = self.state
        x ^= x >> 12
        x ^= (x << 25) & 0xFFFFFFFFFFFFFFFF
        x ^= x >> 27
        self.state = x
        return (((x * 0x2545F4914F6CDD1D) & 0xFFFFFFFFFFFFFFFF) >> 11) / 9007199254740992.0

    def normal(self):
        """Near enough to the normal distribution: the sum of twelve uniform numbers less six."""
        return total_of([self.uniform() for _ in range(12)]) - 6.0

    def poisson(self, mean):
        """Counts: Knuth's product up to a mean of 200, above it the normal distribution of the same mean and variance."""
        if mean > 200.0:
            return max(0, math.floor(mean + math.sqrt(mean) * self.normal() + 0.5))
        limit, product, count = exponential(-mean), self.uniform(), 0
        while product > limit:
            product *= self.uniform()
            count += 1
        return count


def exponential(x):
    """exp(x) from additions, multiplications and divisions alone, which every machine does alike."""
    x /= 1024.0
    term = total = 1.0
    for k in range(1, 20):
        term *= x / k
        total += term
    for _ in range(10):
        total *= total
    return total


def total_of(values):
    """A plain sum from left to right; the built-in one compensates rounding in newer versions of Python only."""
    total = 0.0
    for value in values:
        total += value
    return total


def mean_of(values):
    return total_of(values) / len(values)


def deviation_of(values, mean):
    return math.sqrt(total_of([(value - mean) * (value - mean) for value in values]) / (len(values) - 1))


def field(value):
    return f'"{value}"' if isinstance(value, str) else decimal(value)


def decimal(value):
    text = repr(value)
    assert "e" not in text and "n" not in text, text
    return text[:-2] if text.endswith(".0") else text


def records(rows):
    """A record file: texts in double quotes, numbers bare, CR LF after each record."""
    return "".join(",".join(field(value) for value in row) + "\r\n" for row in rows)


def fill_tables(text, tables):
    """The text with the lines between its markers made anew: name of the marker -> lines; the other words are written by hand."""
    for name, lines in tables.items():
        begin, end = f"<!-- made: {name} -->\n", "<!-- end -->"
        head, rest = text.split(begin)
        text = head + begin + "\n".join(lines) + "\n" + rest[rest.index(end):]
    return text
