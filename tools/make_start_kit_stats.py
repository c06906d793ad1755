# Critical values of Grubbs' test and Student's t in plain Python, for the two statistical tables of the start kit.
#
# Grubbs, one-sided, largest or smallest value, s.d. with n - 1 (Grubbs 1969, Technometrics 11, 1-21; NIST/SEMATECH
# e-Handbook of Statistical Methods, 1.3.5.17): with t the upper quantile of Student's t at alpha / n, n - 2 degrees of freedom,
# G = (n - 1) / sqrt(n) * sqrt(t^2 / (n - 2 + t^2)).
import math

GRUBBS_ALPHA = (0.10, 0.075, 0.05, 0.025, 0.01)
STUDENT_P = (0.90, 0.95, 0.975, 0.99, 0.995, 0.9995)

# Rows to compare with: n, then the values at 10, 7.5, 5, 2.5 and 1 percent.
GRUBBS_PUBLISHED = {
    3: (1.1484, 1.1511, 1.1531, 1.1543, 1.1546),
    10: (2.0362, 2.0978, 2.1761, 2.2900, 2.4097),
    20: (2.3853, 2.4590, 2.5566, 2.7082, 2.8838),
    30: (2.5651, 2.6420, 2.7451, 2.9085, 3.1029),
    50: (2.7719, 2.8505, 2.9570, 3.1282, 3.3366),
    100: (3.0239, 3.1024, 3.2095, 3.3841, 3.6002),
}
# The usual printed t table: degrees of freedom, then one-sided 0.90, 0.95, 0.975, 0.99, 0.995, 0.9995.
STUDENT_PUBLISHED = {
    1: (3.078, 6.314, 12.706, 31.821, 63.657, 636.619),
    2: (1.886, 2.920, 4.303, 6.965, 9.925, 31.599),
    10: (1.372, 1.812, 2.228, 2.764, 3.169, 4.587),
    30: (1.310, 1.697, 2.042, 2.457, 2.750, 3.646),
    100: (1.290, 1.660, 1.984, 2.364, 2.626, 3.390),
}


def beta_fraction(a, b, x):
    """Continued fraction of the incomplete beta function, by the modified method of Lentz."""
    tiny = 1e-300
    c, d = 1.0, 1.0 - (a + b) * x / (a + 1.0)
    d = 1.0 / (d if abs(d) > tiny else tiny)
    result = d
    for m in range(1, 1000):
        even = m * (b - m) * x / ((a + 2 * m - 1.0) * (a + 2 * m))
        odd = -(a + m) * (a + b + m) * x / ((a + 2 * m) * (a + 2 * m + 1.0))
        for term in (even, odd):
            d = 1.0 + term * d
            d = 1.0 / (d if abs(d) > tiny else tiny)
            c = 1.0 + term / c
            c = c if abs(c) > tiny else tiny
            result *= d * c
        if abs(d * c - 1.0) < 1e-15:
            return result
    raise ArithmeticError("incomplete beta does not converge")


def incomplete_beta(a, b, x):
    """Regularised incomplete beta function, 0 <= x <= 1."""
    if x <= 0.0 or x >= 1.0:
        return 0.0 if x <= 0.0 else 1.0
    front = math.exp(math.lgamma(a + b) - math.lgamma(a) - math.lgamma(b) + a * math.log(x) + b * math.log1p(-x))
    if x < (a + 1.0) / (a + b + 2.0):
        return front * beta_fraction(a, b, x) / a
    return 1.0 - front * beta_fraction(b, a, 1.0 - x) / b


def t_quantile(tail, df):
    """The t that Student's t with df degrees of freedom exceeds with probability tail (below 0.5)."""
    def upper_tail(t):
        return 0.5 * incomplete_beta(df / 2.0, 0.5, df / (df + t * t))
    low, high = 0.0, 1.0
    while upper_tail(high) > tail:
        high *= 2.0
    for _ in range(200):
        middle = (low + high) / 2.0
        if upper_tail(middle) > tail:
            low = middle
        else:
            high = middle
    return (low + high) / 2.0


def grubbs(n, alpha):
    """One-sided critical value for n data at the significance level alpha."""
    t = t_quantile(alpha / n, n - 2)
    return (n - 1) / math.sqrt(n) * math.sqrt(t * t / (n - 2 + t * t))


def grubbs_rows():
    return [(n, [grubbs(n, alpha) for alpha in GRUBBS_ALPHA]) for n in range(3, 101)]


def student_rows():
    return [(df, [t_quantile(1.0 - p, df) for p in STUDENT_P]) for df in range(1, 102)]


def compare(name, rows, published, places):
    """Messages for every value that differs from the published one in its last printed place."""
    table, wrong = dict(rows), []
    for n, expected in published.items():
        for got, want in zip(table[n], expected):
            if abs(got - want) > 0.5000001 * 10.0 ** -places:
                wrong.append(f"{name}, n = {n}: {got:.6f}, published {want}")
    return wrong


def check_tables():
    return (compare("Grubbs", grubbs_rows(), GRUBBS_PUBLISHED, 4)
            + compare("Student", student_rows(), STUDENT_PUBLISHED, 3))
