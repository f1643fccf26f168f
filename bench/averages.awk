# SPDX-License-Identifier: GPL-3.0-or-later
# The averages of make_averages' comma-separated values, by types with one drop a type.
BEGIN { FS = ","; W["E"] = 15; W["HW"] = 20; W["Q"] = 25; W["T"] = 40; W["X"] = 5
        split("A+ 99 A 95 A- 90 B+ 88 B 85 B- 80 C+ 78 C 75 C- 70 D+ 68 D 65 D- 60 F 55", l, " ")
        for (k = 1; k < 26; k += 2) L[l[k]] = l[k + 1] }
NR == 1 { for (i = 2; i <= NF; i++) type[i] = $i; next }
NR == 2 { for (i = 2; i <= NF; i++) max[i] = $i; next }
{ delete sum; delete most; delete low; delete n
  for (i = 2; i <= NF; i++) { m = $i; if (m == "NEW" || m == "ABS" || m == "EXC") continue
    t = type[i]; v = (m in L) ? L[m] : m + 0; sum[t] += v; most[t] += max[i]; n[t]++; p = 100 * v / max[i]
    if (m != "CUT" && m != "NON" && t != "X" && (!(t in low) || p < low[t])) { low[t] = p; lv[t] = v; lm[t] = max[i] } }
  for (t in low) { sum[t] -= lv[t]; most[t] -= lm[t]; n[t]-- }
  avg = 0; rest = 100; extra = 0
  for (t in W) if (n[t] > 0) { if (t == "X") extra = W[t] * sum[t] / most[t]; else avg += W[t] * sum[t] / most[t] } else if (t != "X") rest -= W[t]
  printf "%s,%.4f\n", $1, (rest ? 100 * avg / rest : avg) + extra }
