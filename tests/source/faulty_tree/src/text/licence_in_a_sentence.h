// The licence is in the sentence before it. SPDX-License-Identifier: MIT
