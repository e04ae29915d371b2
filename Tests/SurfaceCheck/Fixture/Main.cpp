#include "../Fixture/Lamp.h"

static_assert(EvaluatedAtCompileTime(1) == 2);

class FOwnLamp : public FLamp
{
public:
	void Dim() override {} // nobody calls it, and still it must be there to be overridden
};

int main()
{
	FOwnLamp Own;
	FLamp& Lamp = GetLamp();
	void (FLamp::*Later)() = &FLamp::Pulse;
	Lamp.Shine();
	Lamp.Clean();
	(Lamp.*Later)();
	GetSocket().Plug();
	Blink();
	const TBox<int> Box;
	return Box < Box ? Box.Get() + Lamp.GetPower() : 0;
}
