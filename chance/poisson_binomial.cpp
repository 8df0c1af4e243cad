#include "chance/poisson_binomial.h"

#include <algorithm>

namespace trv5 {

PoissonBinomial::PoissonBinomial(const std::vector<double>& chances) {
  for (const double chance : chances) add(chance);
}

void PoissonBinomial::add(double chance) {
  m_chanceOf.push_back(0);
  for (std::size_t k = m_chanceOf.size() - 1; k > 0; --k)
    m_chanceOf[k] = m_chanceOf[k] * (1 - chance) + m_chanceOf[k - 1] * chance;
  m_chanceOf[0] *= 1 - chance;
  m_mean += chance;
  m_variance += chance * (1 - chance);
}

double PoissonBinomial::exactly(int successes) const {
  return successes < 0 || successes > trials() ? 0 : m_chanceOf[static_cast<std::size_t>(successes)];
}

double PoissonBinomial::atLeast(int successes) const {
  if (successes <= 0) return 1;
  double chance = 0;
  for (int k = trials(); k >= successes; --k) chance += m_chanceOf[static_cast<std::size_t>(k)];
  return std::min(chance, 1.0);
}

int PoissonBinomial::quantile(double share) const {
  double chance = 0;
  for (int k = 0; k < trials(); ++k) {
    chance += m_chanceOf[static_cast<std::size_t>(k)];
    if (chance >= share) return k;
  }
  return trials();
}

}  // namespace trv5
