"""What the verification manual's tool has too: runs' lists, drawings, files that are made."""
import sys
from pathlib import Path

sys.path.append(str(Path(__file__).resolve().parents[2] / "verification" / "tool"))

from program import FROM_ZERO, ROOT, Numbers  # noqa: E402,F401
from renewed import renew, stale_of  # noqa: E402,F401
from svg import Svg  # noqa: E402,F401
